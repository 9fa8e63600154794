// Controls of the simulated desktop: what a test says about them, and what the contract tests cannot show everywhere.
#include <gtest/gtest.h>

#include "platform/messages.h"
#include "platform/process_memory.h"
#include "platform/simulated/desktop.h"
#include "platform/window_lookup.h"

namespace {

using namespace platform::simulated;
using platform::SendMessageA;

class SimulatedControls : public testing::Test {
 protected:
  void SetUp() override {
    platform::simulated::Reset();
    window = AddWindow({.className = "ThunderRT6FormDC", .text = "Fenster"});
  }

  std::int32_t Add(Window control) {
    control.parent = window;
    return AddWindow(std::move(control));
  }

  static std::int32_t Ask(std::int32_t hWnd, std::uint32_t message, std::int32_t wParam = 0) {
    return SendMessageA(hWnd, message, wParam, 0);
  }

  std::vector<std::uint32_t> CommandsOfTheWindow() {
    std::vector<std::uint32_t> commands;
    for (const Message& message : At(window).received)
      if (message.number == platform::WM_COMMAND) commands.push_back(static_cast<std::uint32_t>(message.lParam));
    return commands;
  }

  std::int32_t window = 0;
};

TEST_F(SimulatedControls, CheckBoxOfItsOwnClassTurnsWithoutAStyle) {
  const auto box = Add({.className = "ThunderRT6CheckBox", .id = 4, .check = 1});
  EXPECT_EQ(Ask(box, platform::BM_GETCHECK), 1);
  Ask(box, platform::BM_CLICK);
  EXPECT_EQ(Ask(box, platform::BM_GETCHECK), 0);
  EXPECT_EQ(CommandsOfTheWindow().size(), 1u);
  Ask(box, platform::BM_SETCHECK, 1);
  EXPECT_EQ(At(box).check, 1);
  EXPECT_EQ(CommandsOfTheWindow().size(), 1u);
}

TEST_F(SimulatedControls, OptionOfItsOwnClassClearsTheOthersOfItsFrame) {
  const auto frame = Add({.className = "ThunderRT6Frame", .id = 2});
  const auto inside = AddWindow({.className = "ThunderRT6OptionButton", .parent = frame, .id = 3, .check = 1});
  const auto a = Add({.className = "ThunderRT6OptionButton", .id = 4, .check = 1});
  const auto b = Add({.className = "thunderrt6optionbutton", .id = 5});
  Ask(b, platform::BM_CLICK);
  EXPECT_EQ(At(a).check, 0);
  EXPECT_EQ(At(b).check, 1);
  EXPECT_EQ(At(inside).check, 1);
}

TEST_F(SimulatedControls, OptionThatIsAWindowOfItsOwnIsItsOwnGroup) {
  const auto lone = AddWindow({.className = "ThunderRT6OptionButton"});
  Ask(lone, platform::BM_CLICK);
  EXPECT_EQ(At(lone).check, 1);
}

TEST_F(SimulatedControls, WindowMayVanishAtTheClick) {
  const auto box = Add({.className = "ThunderRT6CheckBox", .id = 4});
  At(window).procedure = [this](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_COMMAND) DestroyWindow(window);
    return std::nullopt;
  };
  EXPECT_EQ(Ask(box, platform::BM_CLICK), 0);
  EXPECT_FALSE(Exists(box));
}

TEST_F(SimulatedControls, ComboBoxShowsTheEntryThatIsSelectedFromTheStart) {
  const auto combo = Add({.className = "ThunderRT6ComboBox", .entries = {"DM", "EUR"}, .selection = 1});
  platform::TextBuffer buffer(10);
  EXPECT_EQ(SendMessageA(combo, platform::WM_GETTEXT, 10, buffer), 3);
  EXPECT_STREQ(buffer.bytes.c_str(), "EUR");
  EXPECT_EQ(Ask(combo, platform::CB_GETCURSEL), 1);
}

TEST_F(SimulatedControls, FindStringKnowsTheUmlautsInBothCases) {
  const auto combo = Add({.className = "ComboBox", .entries = {"Österreich", "Überleitung"}});
  EXPECT_EQ(SendMessageA(combo, platform::CB_FINDSTRING, 0, "über"), 1);
  EXPECT_EQ(SendMessageA(combo, platform::CB_FINDSTRING, 0, "öST"), 0);
}

TEST_F(SimulatedControls, ApplicationMayAnswerInPlaceOfTheControl) {
  const auto box = Add({.className = "ThunderRT6CheckBox"});
  At(box).procedure = [](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::BM_GETCHECK) return 7;
    return std::nullopt;
  };
  EXPECT_EQ(Ask(box, platform::BM_GETCHECK), 7);
}

TEST_F(SimulatedControls, ListByAnotherNameIsOneThatHasRows) {
  const auto list =
      Add({.className = "ListView", .rows = {{{"4711"}}, {{"4712"}, platform::LVIS_SELECTED}}, .selectionMark = 1});
  EXPECT_EQ(Ask(list, platform::LVM_GETITEMCOUNT), 2);
  EXPECT_EQ(Ask(list, platform::LVM_GETSELECTEDCOUNT), 1);
  EXPECT_EQ(Ask(list, platform::LVM_GETSELECTIONMARK), 1);
}

TEST_F(SimulatedControls, EightBitTextOfACellIsCutToItsRoom) {
  const auto list = AddWindow({.className = "SysListView32", .process = kOwnProcess, .rows = {{{"Müller"}}}});
  const auto view = platform::MapViewOfFile(platform::CreateFileMappingA(-1, platform::PAGE_READWRITE, 0, 80, nullptr),
                                            platform::FILE_MAP_ALL_ACCESS, 0, 0, 80);
  const std::int32_t record[10] = {0, 0, 0, 0, 0, view + 40, 4, 0, 0, 0};
  platform::RtlMoveMemory(view, record, sizeof record);
  platform::RtlMoveMemory(view + 40, "......", 6);
  EXPECT_EQ(SendMessageA(list, platform::LVM_GETITEMTEXTA, 0, view), 3);
  std::string text(6, ' ');
  platform::RtlMoveMemory(text.data(), view + 40, 6);
  EXPECT_EQ(text, std::string("Mül\0..", 6));
}

}  // namespace
