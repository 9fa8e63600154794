// Date fields and text boxes of the second application.
#include "input/merla_controls.h"

#include "automation/state.h"
#include "engine/state.h"
#include "input/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

const char* const kOutOfRange = "Fehler in Funktion SetMerlaDate:Index außerhalb des gültigen Bereichs";
const char* const kNoNumber = "Fehler in Funktion SetMerlaDate:Typen unverträglich";

struct Field {
  std::int32_t window = 0, day = 0, month = 0, year = 0;
};

class MerlaTest : public SystemTest {
 protected:
  static constexpr std::int32_t kFrame = 42;

  MerlaTest() {
    form_ = TargetWindow("Buchungsexport");
    frame_ = Child("ThunderRT6Frame", "Zeitraum", kFrame, form_);
  }

  static std::int32_t Child(const std::string& cls, const std::string& text, std::int32_t id, std::int32_t parent) {
    return AddWindow({.className = cls, .text = text, .parent = parent, .id = id});
  }

  // The boxes stand in the order in which a date is read.
  Field AddField(const std::string& day, const std::string& month, const std::string& year) {
    Field field;
    field.window = Child("ThunderRT6UserControlDC", "", 0, frame_);
    field.day = Child("ThunderRT6Textbox", day, 3, field.window);
    field.month = Child("ThunderRT6Textbox", month, 4, field.window);
    field.year = Child("ThunderRT6Textbox", year, 2, field.window);
    return field;
  }

  static bool Write(const std::string& from, const std::string& to, const std::string& fromIndex = "0",
                    const std::string& toIndex = "1") {
    return SetMerlaDate(from, to, "Buchungsexport", "42", fromIndex, toIndex);
  }

  static std::string Shown(const Field& field) {
    return At(field.day).text + "." + At(field.month).text + "." + At(field.year).text;
  }

  static Lines Handles(const Field& field) {
    return {"Month HWnd: " + std::to_string(field.month), "Year HWnd: " + std::to_string(field.year),
            "Day HWnd: " + std::to_string(field.day)};
  }

  // The log of two fields that were read.
  static Lines Read(const Field& from, const std::string& fromDate, const Field& to, const std::string& toDate) {
    return Handles(from) + Lines{"ValidValues: Index=0 " + fromDate} + Handles(to) +
           Lines{"ValidValues: Index=1 " + toDate};
  }

  static std::string Refused(std::int32_t box, const std::string& value, int index) {
    return "<< " + std::to_string(box) + " " + value + " Index: " + std::to_string(index);
  }

  std::int32_t form_ = 0;
  std::int32_t frame_ = 0;
};

// The shared search.

TEST_F(MerlaTest, ChildrenOfAClassAreAllDescendantsInOrderWithoutCase) {
  const std::int32_t outer = Child("ThunderRT6UserControlDC", "", 1, frame_);
  Child("Static", "", 2, frame_);
  const std::int32_t inner = Child("THUNDERRT6USERCONTROLDC", "", 3, outer);
  const std::int32_t last = Child("ThunderRT6UserControlDC", "", 4, form_);
  FindChildrenOfClass(form_, "thunderrt6usercontroldc", 0);
  EXPECT_EQ(inputRoom.ClassWindows, (std::vector<std::int32_t>{outer, inner, last, 0}));
}

TEST_F(MerlaTest, ChildrenOfAClassAreSearchedAnewEachTime) {
  Child("ThunderRT6UserControlDC", "", 1, frame_);
  FindChildrenOfClass(form_, "ThunderRT6UserControlDC", 0);
  FindChildrenOfClass(form_, "ThunderRT6Frame", 0);
  EXPECT_EQ(inputRoom.ClassWindows, (std::vector<std::int32_t>{frame_, 0}));
}

TEST_F(MerlaTest, AnyOtherNumberLeavesTheListEmpty) {
  FindChildrenOfClass(form_, "ThunderRT6Frame", 0);
  FindChildrenOfClass(form_, "ThunderRT6Frame", 1);
  EXPECT_EQ(inputRoom.ClassWindows, (std::vector<std::int32_t>{0}));
}

TEST_F(MerlaTest, AWindowThatIsGoneHasNoChildren) {
  const std::int32_t gone = Child("ThunderRT6Frame", "", 9, form_);
  DestroyWindow(gone);
  FindChildrenOfClass(gone, "ThunderRT6Frame", 0);
  EXPECT_EQ(inputRoom.ClassWindows, (std::vector<std::int32_t>{0}));
}

TEST_F(MerlaTest, AnEnumerationThatFailsLeavesTheListEmpty) {
  Fail("EnumChildWindows");
  FindChildrenOfClass(form_, "ThunderRT6Frame", 0);
  EXPECT_EQ(inputRoom.ClassWindows, (std::vector<std::int32_t>{0}));
}

// "SETMERLADATE".

TEST_F(MerlaTest, BothDatesAreWrittenIntoTheirFields) {
  const Field from = AddField("11", "12", "2001");
  const Field to = AddField("21", "11", "2002");
  EXPECT_TRUE(Write("01.01.2003", "31.12.2003"));
  EXPECT_EQ(Shown(from), "01.01.2003");
  EXPECT_EQ(Shown(to), "31.12.2003");
  ExpectLog(Read(from, "11.12.2001", to, "21.11.2002") +
            Lines{"0 1", "MerlaDate DayFrom: 01", "MerlaDate MonthFrom: 01", "MerlaDate YearFrom: 2003",
                  "MerlaDate DayTo: 31", "MerlaDate MonthTo: 12", "MerlaDate YearTo: 2003"});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(MerlaTest, MacroLineHandsItsArgumentsOverInOrder) {
  AddField("11", "12", "2001");
  const Field from = AddField("11", "12", "2001");
  const Field to = AddField("21", "11", "2002");
  EXPECT_TRUE(RunLines({"SETMERLADATE=01.01.2003,31.12.2003,Buchungsexport,42,1,2"}));
  EXPECT_EQ(Shown(from), "01.01.2003");
  EXPECT_EQ(Shown(to), "31.12.2003");
}

TEST_F(MerlaTest, IndicesChooseTheFields) {
  const Field first = AddField("11", "12", "2001");
  const Field second = AddField("21", "11", "2002");
  EXPECT_TRUE(Write("01.02.2003", "31.12.2003", "1", "0"));
  EXPECT_EQ(Shown(second), "01.02.2003");
  EXPECT_EQ(Shown(first), "31.12.2003");
}

TEST_F(MerlaTest, BlankDayInTheFromFieldKeepsBothDaysOut) {
  const Field from = AddField("", "12", "2001");
  const Field to = AddField("21", "11", "2002");
  EXPECT_TRUE(Write("01.02.2003", "31.10.2004"));
  EXPECT_EQ(Shown(from), ".02.2003");
  EXPECT_EQ(Shown(to), "21.10.2004");
  ExpectLog(Read(from, ".12.2001", to, "21.11.2002") +
            Lines{"0 1", Refused(from.day, "01", 0) + "Dayval: ", "MerlaDate MonthFrom: 02", "MerlaDate YearFrom: 2003",
                  Refused(to.day, "31", 1) + "Dayval: ", "MerlaDate MonthTo: 10", "MerlaDate YearTo: 2004"});
}

TEST_F(MerlaTest, BlankDayInTheToFieldGetsADayAllTheSame) {
  const Field from = AddField("11", "12", "2001");
  const Field to = AddField("", "11", "2002");
  EXPECT_TRUE(Write("01.02.2003", "31.10.2004"));
  EXPECT_EQ(Shown(from), "01.02.2003");
  EXPECT_EQ(Shown(to), "31.10.2004");
}

TEST_F(MerlaTest, ToDayIsRefusedWithTheDayThatTheFromFieldShowed) {
  const Field from = AddField("xx", "12", "2001");
  const Field to = AddField("21", "11", "2002");
  EXPECT_TRUE(Write("", "31.10.2004"));
  ExpectLog(Read(from, "xx.12.2001", to, "21.11.2002") +
            Lines{"0 1", Refused(to.day, "31", 1) + "Dayval: xx", "MerlaDate MonthTo: 10", "MerlaDate YearTo: 2004"});
}

TEST_F(MerlaTest, DateWithoutADotLeavesItsFieldAlone) {
  const Field from = AddField("11", "12", "2001");
  const Field to = AddField("21", "11", "2002");
  EXPECT_TRUE(Write("2003", "31.10.2004"));
  EXPECT_EQ(Shown(from), "11.12.2001");
  EXPECT_EQ(Shown(to), "31.10.2004");
  EXPECT_TRUE(Write("01.02.2003", ""));
  EXPECT_EQ(Shown(from), "01.02.2003");
  EXPECT_EQ(Shown(to), "31.10.2004");
}

TEST_F(MerlaTest, PartThatIsNoNumberIsRefusedAndTheOthersAreWritten) {
  const Field from = AddField("11", "12", "2001");
  const Field to = AddField("21", "11", "2002");
  EXPECT_TRUE(Write("XX.01.2003", "31.YY.ZZ"));
  EXPECT_EQ(Shown(from), "11.01.2003");
  EXPECT_EQ(Shown(to), "31.11.2002");
  ExpectLog(Read(from, "11.12.2001", to, "21.11.2002") + Lines{"0 1", Refused(from.day, "XX", 0) + "Dayval: 11",
                                                               "MerlaDate MonthFrom: 01", "MerlaDate YearFrom: 2003",
                                                               "MerlaDate DayTo: 31", Refused(to.month, "YY", 1),
                                                               Refused(to.year, "ZZ", 1)});
}

TEST_F(MerlaTest, FieldWithoutABoxIsNotValidButItsOtherBoxesAreReadAndWritten) {
  const Field from = AddField("11", "12", "2001");
  const Field to = AddField("21", "11", "2002");
  DestroyWindow(from.month);
  EXPECT_TRUE(Write("01.02.2003", ""));
  EXPECT_EQ(At(from.day).text, "01");
  EXPECT_EQ(At(from.year).text, "2003");
  ExpectLog(Lines{"Year HWnd: " + std::to_string(from.year), "Day HWnd: " + std::to_string(from.day),
                  ">>not ValidValues: 0 11..2001"} +
            Handles(to) +
            Lines{"ValidValues: Index=1 21.11.2002", "0 1", "MerlaDate DayFrom: 01", Refused(0, "02", 0),
                  "MerlaDate YearFrom: 2003"});
}

TEST_F(MerlaTest, FieldWithoutADayBoxGetsNoDay) {
  const Field from = AddField("11", "12", "2001");
  DestroyWindow(from.day);
  EXPECT_TRUE(Write("01.02.2003", ""));
  ExpectLog({"Month HWnd: " + std::to_string(from.month), "Year HWnd: " + std::to_string(from.year),
             ">>not ValidValues: 0 .12.2001", "0 1", Refused(0, "01", 0) + "Dayval: ", "MerlaDate MonthFrom: 02",
             "MerlaDate YearFrom: 2003"});
}

TEST_F(MerlaTest, BoxesAreFoundByClassAndId) {
  const Field from = AddField("11", "12", "2001");
  At(from.year).id = 5;
  Child("Edit", "2007", 2, from.window);
  EXPECT_TRUE(Write("01.02.2003", ""));
  EXPECT_EQ(At(from.year).text, "2001");
}

TEST_F(MerlaTest, MissingFrameRefusesEverythingAndSucceeds) {
  AddField("11", "12", "2001");
  EXPECT_TRUE(SetMerlaDate("01.02.2003", "", "Buchungsexport", "43", "0", "1"));
  ExpectLog({"0 1", Refused(0, "01", 0) + "Dayval: ", Refused(0, "02", 0), Refused(0, "2003", 0)});
}

TEST_F(MerlaTest, WindowIsFoundByItsWholeTitleOnly) {
  const Field from = AddField("11", "12", "2001");
  EXPECT_TRUE(SetMerlaDate("01.02.2003", "", "Buchung", "42", "0", "1"));
  EXPECT_EQ(Shown(from), "11.12.2001");
}

TEST_F(MerlaTest, FrameIdThatIsNoNumberRefusesEverything) {
  const Field from = AddField("11", "12", "2001");
  EXPECT_TRUE(SetMerlaDate("01.02.2003", "", "Buchungsexport", "x", "0", "1"));
  EXPECT_EQ(Shown(from), "11.12.2001");
  EXPECT_EQ(run.LastError, "Fehler in Funktion SearchWindow:Typen unverträglich");
}

TEST_F(MerlaTest, TwentyOneFieldsFitIntoTheTable) {
  Field last;
  for (int i = 0; i < 21; ++i) last = AddField("11", "12", "2001");
  EXPECT_TRUE(Write("01.02.2003", "", "20"));
  EXPECT_EQ(Shown(last), "01.02.2003");
}

TEST_F(MerlaTest, MoreThanTwentyOneFieldsEndInTheHandler) {
  const Field first = AddField("11", "12", "2001");
  for (int i = 1; i < 22; ++i) AddField("11", "12", "2001");
  EXPECT_FALSE(Write("01.02.2003", ""));
  EXPECT_EQ(run.LastError, kOutOfRange);
  EXPECT_EQ(Shown(first), "11.12.2001");
  EXPECT_EQ(Log().back(), "ValidValues: Index=20 11.12.2001");
}

TEST_F(MerlaTest, IndexOutsideTheTableEndsInTheHandler) {
  const Field from = AddField("11", "12", "2001");
  for (const char* index : {"21", "-1", "32767"}) {
    run.LastError.clear();
    EXPECT_FALSE(Write("01.02.2003", "", index)) << index;
    EXPECT_EQ(run.LastError, kOutOfRange) << index;
  }
  EXPECT_EQ(Shown(from), "11.12.2001");
}

TEST_F(MerlaTest, ToIndexOutsideTheTableLeavesTheFromDateWritten) {
  const Field from = AddField("11", "12", "2001");
  EXPECT_FALSE(Write("01.02.2003", "31.12.2003", "0", "21"));
  EXPECT_EQ(run.LastError, kOutOfRange);
  EXPECT_EQ(Shown(from), "01.02.2003");
}

TEST_F(MerlaTest, FromIndexOutsideTheTableFailsTheToDateToo) {
  const Field only = AddField("11", "12", "2001");
  EXPECT_FALSE(Write("", "31.12.2003", "21", "0"));
  EXPECT_EQ(run.LastError, kOutOfRange);
  EXPECT_EQ(Shown(only), "11.12.2001");
}

TEST_F(MerlaTest, IndicesDoNotMatterWithoutADate) {
  EXPECT_TRUE(Write("", "", "99", "-5"));
  ExpectLog({"99 -5"});
}

TEST_F(MerlaTest, FreeIndexOfTheTableRefusesEverything) {
  AddField("11", "12", "2001");
  EXPECT_TRUE(Write("01.02.2003", "", "20"));
  EXPECT_EQ(Log().back(), Refused(0, "2003", 20));
}

TEST_F(MerlaTest, IndexThatIsNoNumberEndsInTheHandler) {
  const Field from = AddField("11", "12", "2001");
  EXPECT_FALSE(Write("01.02.2003", "", "0", ""));
  EXPECT_EQ(run.LastError, kNoNumber);
  EXPECT_FALSE(Write("01.02.2003", "", "x", "0"));
  EXPECT_EQ(run.LastError, kNoNumber);
  EXPECT_FALSE(Write("01.02.2003", "", "40000", "0"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion SetMerlaDate:Überlauf");
  EXPECT_EQ(Shown(from), "11.12.2001");
}

TEST_F(MerlaTest, DateWithoutAThirdPartEndsInTheHandlerBehindItsFirstTwo) {
  const Field from = AddField("11", "12", "2001");
  const Field to = AddField("21", "11", "2002");
  EXPECT_FALSE(Write("01.02", "31.12.2003"));
  EXPECT_EQ(run.LastError, kOutOfRange);
  EXPECT_EQ(Shown(from), "01.02.2001");
  EXPECT_EQ(Shown(to), "21.11.2002");
  EXPECT_EQ(Log().back(), "MerlaDate MonthFrom: 02");
}

TEST_F(MerlaTest, DateOfADotAloneIsRefusedAndEndsInTheHandler) {
  const Field from = AddField("11", "12", "2001");
  EXPECT_FALSE(Write(".", ""));
  EXPECT_EQ(run.LastError, kOutOfRange);
  EXPECT_EQ(Shown(from), "11.12.2001");
  EXPECT_EQ(Log().back(), Refused(from.month, "", 0));
}

TEST_F(MerlaTest, FurtherPartsOfADateAreNotRead) {
  const Field from = AddField("11", "12", "2001");
  EXPECT_TRUE(Write("01.02.2003.99", ""));
  EXPECT_EQ(Shown(from), "01.02.2003");
}

TEST_F(MerlaTest, NothingOfTheTableIsKeptForTheNextCall) {
  const Field from = AddField("11", "12", "2001");
  EXPECT_TRUE(Write("01.02.2003", ""));
  DestroyWindow(from.window);
  EXPECT_TRUE(Write("03.04.2005", ""));
  EXPECT_EQ(Log().back(), Refused(0, "2005", 0));
}

TEST_F(MerlaTest, FieldThatVanishesWhileItIsReadIsRefused) {
  const Field from = AddField("11", "12", "2001");
  At(from.month).procedure = [&](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_GETTEXT) DestroyWindow(frame_);
    return std::nullopt;
  };
  EXPECT_TRUE(Write("01.02.2003", ""));
  EXPECT_FALSE(Exists(from.window));
}

// "SETMERLATEXT".

class MerlaTextTest : public MerlaTest {
 protected:
  static constexpr std::int32_t kBoxId = 41;

  MerlaTextTest() { box_ = Child("ThunderRT6Textbox", "alt", kBoxId, frame_); }

  void ExpectFilled(const std::string& text, std::source_location where = std::source_location::current()) {
    const testing::ScopedTrace trace(where.file_name(), static_cast<int>(where.line()), "");
    EXPECT_EQ(At(box_).text, text);
    ExpectLog({"Das Textfeld wurde ausgefüllt (" + text + ")"});
    EXPECT_EQ(run.LastError, "");
  }

  static void ExpectNotFilled(const std::string& answer) {
    EXPECT_EQ(run.LastError, "Das Textfeld konnte nicht ausgefüllt werden. (" + answer + ")");
    EXPECT_EQ(Log(), Lines{});
  }

  std::int32_t box_ = 0;
};

TEST_F(MerlaTextTest, BoxIsFilledWithoutAFrame) {
  EXPECT_TRUE(SetMERLAText("neu", "41", "Buchungsexport", "1", "ThunderRT6Textbox", "", ""));
  ExpectFilled("neu");
}

TEST_F(MerlaTextTest, MacroLineHandsItsSevenArgumentsOverInOrder) {
  EXPECT_TRUE(
      RunLines({"SETMERLATEXT=neu,41,Buchungsexport,1,ThunderRT6Textbox,42,ThunderRT6Frame", "MSG=behind the verb"}));
  EXPECT_EQ(At(box_).text, "neu");
}

TEST_F(MerlaTextTest, BoxOfTheNamedFrameIsFilled) {
  const std::int32_t other = Child("ThunderRT6Frame", "Mandant", 40, form_);
  const std::int32_t wanted = Child("ThunderRT6Textbox", "", kBoxId, other);
  EXPECT_TRUE(SetMERLAText("neu", "41", "Buchungsexport", "1", "ThunderRT6Textbox", "40", "ThunderRT6Frame"));
  EXPECT_EQ(At(wanted).text, "neu");
  EXPECT_EQ(At(box_).text, "alt");
}

TEST_F(MerlaTextTest, WithoutASearchClassTheFrameIsSearchedByTheControlsClass) {
  // No text box has the frame's id, so neither frame nor control is found.
  EXPECT_FALSE(SetMERLAText("neu", "41", "Buchungsexport", "1", "ThunderRT6Textbox", "42", ""));
  ExpectNotFilled("0");
}

TEST_F(MerlaTextTest, SearchClassFindsTheWindowAndTheClassTheControl) {
  const std::int32_t deep = Child("ThunderRT6Frame", "", 41, frame_);
  At(box_).id = 7;
  const std::int32_t inner = Child("Edit", "", 41, deep);
  EXPECT_TRUE(SetMERLAText("neu", "41", "Buchungsexport", "1", "Edit", "", "ThunderRT6Frame"));
  EXPECT_EQ(At(inner).text, "neu");
}

TEST_F(MerlaTextTest, DirectChildWithTheIdWinsWhateverItsClass) {
  const std::int32_t direct = Child("Edit", "", kBoxId, form_);
  EXPECT_TRUE(SetMERLAText("neu", "41", "Buchungsexport", "1", "ThunderRT6Textbox", "", ""));
  EXPECT_EQ(At(direct).text, "neu");
  EXPECT_EQ(At(box_).text, "alt");
}

TEST_F(MerlaTextTest, TitleIsComparedWholeOnlyWhereAsked) {
  EXPECT_FALSE(SetMERLAText("neu", "41", "Buchung", "1", "ThunderRT6Textbox", "", ""));
  ExpectNotFilled("0");
  run.LastError.clear();
  EXPECT_TRUE(SetMERLAText("neu", "41", "Buchung", "0", "ThunderRT6Textbox", "", ""));
  ExpectFilled("neu");
}

TEST_F(MerlaTextTest, MissingControlFailsUnlessTheTextIsEmpty) {
  EXPECT_FALSE(SetMERLAText("neu", "99", "Buchungsexport", "1", "ThunderRT6Textbox", "", ""));
  ExpectNotFilled("0");
  EXPECT_TRUE(SetMERLAText("", "99", "Buchungsexport", "1", "ThunderRT6Textbox", "", ""));
  ExpectLog({"Das Textfeld wurde ausgefüllt ()"});
}

TEST_F(MerlaTextTest, ControlThatRefusesButShowsTheTextSucceeds) {
  At(box_).text = "neu";
  At(box_).procedure = [](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_SETTEXT) return 0;
    return std::nullopt;
  };
  EXPECT_TRUE(SetMERLAText("neu", "41", "Buchungsexport", "1", "ThunderRT6Textbox", "", ""));
  ExpectFilled("neu");
}

TEST_F(MerlaTextTest, ControlThatRefusesAndShowsAnotherTextFailsWithItsAnswer) {
  At(box_).procedure = [](const Message& message) -> std::optional<std::int32_t> {
    if (message.number == platform::WM_SETTEXT) return 5;
    return std::nullopt;
  };
  EXPECT_FALSE(SetMERLAText("neu", "41", "Buchungsexport", "1", "ThunderRT6Textbox", "", ""));
  ExpectNotFilled("5");
}

TEST_F(MerlaTextTest, IdThatIsNoNumberFindsADirectChildWithoutAnId) {
  const std::int32_t direct = Child("ThunderRT6Textbox", "", 0, form_);
  EXPECT_TRUE(SetMERLAText("neu", "x", "Buchungsexport", "1", "ThunderRT6Textbox", "", ""));
  EXPECT_EQ(At(direct).text, "neu");
}

TEST_F(MerlaTextTest, IdThatIsNoNumberEndsInTheHandlerWhereTheDeepSearchNeedsIt) {
  EXPECT_FALSE(SetMERLAText("neu", "x", "Buchungsexport", "1", "ThunderRT6Textbox", "", ""));
  EXPECT_EQ(run.LastError, "Fehler in Funktion SetMERLAText:Typen unverträglich");
  EXPECT_EQ(At(box_).text, "alt");
}

}  // namespace
