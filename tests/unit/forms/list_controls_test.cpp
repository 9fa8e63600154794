// Options, drop-down lists and lists with check boxes, and how the user of the simulated desktop works them.
#include <gtest/gtest.h>

#include "forms/form.h"
#include "forms/simulated/user.h"
#include "platform/simulated/desktop.h"
#include "runtime/fault.h"

namespace {

using namespace forms;
using runtime::Fault;
using runtime::FaultNumber;

struct TestForm : Form {
  TestForm()
      : Form("frmTest", "Test"),
        optFirst(*this, "optFirst", "eins"),
        optSecond(*this, "optSecond", "zwei"),
        optThird(*this, "optThird", "drei"),
        cboKind(*this, "cboKind", {.characters = 10}),
        txtFree(*this, "txtFree", {.characters = 10}),
        txtDigits(*this, "txtDigits", {.characters = 10},
                  [](unsigned char code) { return code >= '0' && code <= '9'; }),
        lstRows(*this, "lstRows", {"", "Nummer", "Name"}, {.characters = 30, .lines = 5},
                {.ItemClick = [this](std::size_t item) { told.push_back("click " + std::to_string(item)); },
                 .ItemCheck = [this](std::size_t item) { told.push_back("check " + std::to_string(item)); },
                 .DblClick = [this] { told.emplace_back("double click"); }}) {}

  OptionButton optFirst, optSecond, optThird;
  ComboBox cboKind;
  TextBox txtFree, txtDigits;
  ListView lstRows;
  std::vector<std::string> told;
};

using Told = std::vector<std::string>;

class ListControlsTest : public testing::Test {
 protected:
  ListControlsTest() {
    platform::simulated::Reset();
    form.Show();
  }
  ~ListControlsTest() override {
    form.Unload();
    simulated::Reset();
  }

  void ExpectOptions(bool first, bool second, bool third) {
    EXPECT_EQ(form.optFirst.Value(), first);
    EXPECT_EQ(form.optSecond.Value(), second);
    EXPECT_EQ(form.optThird.Value(), third);
  }

  template <class Statement>
  static void ExpectFault(FaultNumber number, Statement statement) {
    try {
      statement();
      ADD_FAILURE() << "no fault";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.number, number);
    }
  }

  TestForm form;
};

TEST_F(ListControlsTest, AtFirstNoOptionIsSet) { ExpectOptions(false, false, false); }

TEST_F(ListControlsTest, SettingAnOptionClearsTheOthers) {
  form.optFirst.SetValue(true);
  ExpectOptions(true, false, false);
  form.optThird.SetValue(true);
  ExpectOptions(false, false, true);
}

TEST_F(ListControlsTest, ClearingAnOptionLeavesTheOthers) {
  form.optSecond.SetValue(true);
  form.optFirst.SetValue(false);
  ExpectOptions(false, true, false);
  form.optSecond.SetValue(false);
  ExpectOptions(false, false, false);
}

TEST_F(ListControlsTest, TheUserPressesOptions) {
  simulated::Press(form.optSecond);
  EXPECT_EQ(simulated::Focused(), &form.optSecond);
  simulated::Press(form.optFirst);
  ExpectOptions(true, false, false);
}

TEST_F(ListControlsTest, ADropDownListStartsEmptyAndWithoutAChoice) {
  EXPECT_EQ(form.cboKind.ListIndex(), -1);
  ExpectFault(FaultNumber::InvalidPropertyValue, [&] { form.cboKind.SetListIndex(0); });
}

TEST_F(ListControlsTest, ABadListIndexIsAFaultAndLeavesTheChoice) {
  form.cboKind.AddItem("a");
  form.cboKind.AddItem("b");
  form.cboKind.SetListIndex(1);
  for (const int index : {-2, -1, 2, 32767}) {
    ExpectFault(FaultNumber::InvalidPropertyValue, [&] { form.cboKind.SetListIndex(index); });
  }
  EXPECT_EQ(form.cboKind.ListIndex(), 1);
}

TEST_F(ListControlsTest, TheUserChoosesAnEntry) {
  form.cboKind.AddItem("a");
  form.cboKind.AddItem("b");
  simulated::Choose(form.cboKind, "b");
  EXPECT_EQ(form.cboKind.ListIndex(), 1);
  EXPECT_THROW(simulated::Choose(form.cboKind, "c"), std::logic_error);
}

TEST_F(ListControlsTest, ItemsHaveUniqueKeys) {
  EXPECT_EQ(form.lstRows.Add("ItemA", ""), 0u);
  EXPECT_EQ(form.lstRows.Add("Itema", ""), 1u);
  ExpectFault(FaultNumber::KeyNotUnique, [&] { form.lstRows.Add("ItemA", "x"); });
  EXPECT_EQ(form.lstRows.Count(), 2u);
}

TEST_F(ListControlsTest, ItemsHoldTextsAndMarks) {
  const std::size_t item = form.lstRows.Add("Item", "Text");
  form.lstRows.SetSubItem(item, 1, "4711");
  form.lstRows.SetSubItem(item, 2, "Müller");
  form.lstRows.SetChecked(item, true);
  EXPECT_EQ(form.lstRows.Item(item).text, "Text");
  EXPECT_EQ(form.lstRows.SubItem(item, 1), "4711");
  EXPECT_EQ(form.lstRows.SubItem(item, 2), "Müller");
  EXPECT_TRUE(form.lstRows.Item(item).checked);
}

TEST_F(ListControlsTest, ItemsAndColumnsThatAreNotThereAreFaults) {
  form.lstRows.Add("Item", "");
  ExpectFault(FaultNumber::OutOfRange, [&] { form.lstRows.Item(1); });
  ExpectFault(FaultNumber::OutOfRange, [&] { form.lstRows.SubItem(0, 0); });
  ExpectFault(FaultNumber::OutOfRange, [&] { form.lstRows.SubItem(0, 3); });
  ExpectFault(FaultNumber::OutOfRange, [&] { form.lstRows.SetSubItem(0, 3, ""); });
  ExpectFault(FaultNumber::OutOfRange, [&] { form.lstRows.SetSubItem(1, 1, ""); });
  ExpectFault(FaultNumber::OutOfRange, [&] { form.lstRows.SetChecked(1, true); });
  ExpectFault(FaultNumber::OutOfRange, [&] { form.lstRows.Select(1); });
  ExpectFault(FaultNumber::OutOfRange, [&] { form.lstRows.EnsureVisible(1); });
}

TEST_F(ListControlsTest, WhatTheProgramDoesRaisesNoEvent) {
  form.lstRows.Add("A", "");
  form.lstRows.SetChecked(0, true);
  form.lstRows.Select(0);
  form.lstRows.EnsureVisible(0);
  EXPECT_TRUE(form.told.empty());
  EXPECT_EQ(form.lstRows.Selected(), 0u);
}

TEST_F(ListControlsTest, AClickOnAnItemSelectsIt) {
  form.lstRows.Add("A", "");
  form.lstRows.Add("B", "");
  simulated::ClickItem(form.lstRows, 1);
  EXPECT_EQ(form.told, Told{"click 1"});
  EXPECT_EQ(form.lstRows.Selected(), 1u);
  EXPECT_EQ(simulated::Focused(), &form.lstRows);
  EXPECT_THROW(simulated::ClickItem(form.lstRows, 2), std::logic_error);
}

TEST_F(ListControlsTest, AClickOnABoxFlipsTheMarkAndSelectsNothing) {
  form.lstRows.Add("A", "");
  simulated::ClickBox(form.lstRows, 0);
  EXPECT_TRUE(form.lstRows.Item(0).checked);
  simulated::ClickBox(form.lstRows, 0);
  EXPECT_FALSE(form.lstRows.Item(0).checked);
  EXPECT_EQ(form.told, (Told{"check 0", "check 0"}));
  EXPECT_FALSE(form.lstRows.Selected());
}

TEST_F(ListControlsTest, ADoubleClickIsAClickBeforeItIsOne) {
  form.lstRows.Add("A", "");
  simulated::DoubleClick(form.lstRows, 0);
  EXPECT_EQ(form.told, (Told{"click 0", "double click"}));
  EXPECT_FALSE(form.lstRows.Item(0).checked);
}

TEST_F(ListControlsTest, DisabledAndHiddenControlsTakeNoInput) {
  form.cboKind.AddItem("a");
  form.lstRows.Add("A", "");
  form.optFirst.SetEnabled(false);
  form.cboKind.SetEnabled(false);
  simulated::Press(form.optFirst);
  simulated::Choose(form.cboKind, "a");
  form.Hide();
  simulated::ClickBox(form.lstRows, 0);
  simulated::DoubleClick(form.lstRows, 0);
  EXPECT_FALSE(form.optFirst.Value());
  EXPECT_EQ(form.cboKind.ListIndex(), -1);
  EXPECT_TRUE(form.told.empty());
}

TEST_F(ListControlsTest, AFieldSwallowsTheCharactersThatItDoesNotWant) {
  simulated::Type(form.txtDigits, "12a3 4");
  simulated::Type(form.txtFree, "12a3 4");
  EXPECT_EQ(form.txtDigits.Text(), "1234");
  EXPECT_EQ(form.txtFree.Text(), "12a3 4");
}

TEST_F(ListControlsTest, TheProgramMaySetWhatTheUserMayNotType) {
  form.txtDigits.SetText("abc");
  EXPECT_EQ(form.txtDigits.Text(), "abc");
}

TEST_F(ListControlsTest, LoadingAnewForgetsItemsEntriesAndChoices) {
  form.cboKind.AddItem("a");
  form.cboKind.SetListIndex(0);
  form.lstRows.Add("A", "");
  form.lstRows.Select(0);
  form.optFirst.SetValue(true);
  form.Unload();
  EXPECT_EQ(form.lstRows.Count(), 0u);
  EXPECT_FALSE(form.lstRows.Selected());
  EXPECT_EQ(form.lstRows.Add("A", ""), 0u);
  EXPECT_EQ(form.cboKind.ListIndex(), -1);
  ExpectFault(FaultNumber::InvalidPropertyValue, [&] { form.cboKind.SetListIndex(0); });
  ExpectOptions(false, false, false);
}

}  // namespace
