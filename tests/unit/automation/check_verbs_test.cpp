// The verbs on option buttons and check boxes.
#include "automation/check_verbs.h"

#include "unit/automation/control_test.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

const char* const kCheck = "ThunderRT6CheckBox";
const char* const kOption = "ThunderRT6OptionButton";
const char* const kFrame = "ThunderRT6Frame";

class CheckTest : public ControlTest {
 protected:
  static std::string Set(const std::string& state) {
    return "Das Optionsfeld konnte erfolgreich ausgewählt werden. (" + state + ")";
  }
  static std::string NotSet(const std::string& state) {
    return "Das Optionsfeld konnte nicht ausgewählt werden. (" + state + ")";
  }

  std::int32_t Marked(const std::string& cls, std::int32_t id, std::int32_t check, std::int32_t parent = 0) {
    const std::int32_t box = Child(cls, "Feld", id, parent);
    At(box).check = check;
    return box;
  }
};

// "SETOPTION".

class SetOptionTest : public CheckTest {
 protected:
  void ExpectNoControl() { ExpectFailure("SetOption konnte das Control nicht finden"); }
};

TEST_F(SetOptionTest, TheButtonIsClickedAndThenAsked) {
  const std::int32_t option = Marked(kOption, 7, 0);
  EXPECT_TRUE(SetOption("7", "Export", "1", kOption, "", ""));
  EXPECT_EQ(At(option).check, 1);
  EXPECT_EQ(ReceivedNumbers(option), (Numbers{platform::BM_CLICK, platform::BM_GETCHECK}));
  ExpectLog({Set("1")});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(SetOptionTest, TheApplicationLearnsOfTheClick) {
  const std::int32_t option = Marked(kOption, 7, 0);
  EXPECT_TRUE(SetOption("7", "Export", "1", kOption, "", ""));
  ExpectCommand(window_, 7, option);
}

TEST_F(SetOptionTest, AnOptionThatIsSetStaysSet) {
  Marked(kOption, 7, 1);
  EXPECT_TRUE(SetOption("7", "Export", "1", kOption, "", ""));
  ExpectLog({Set("1")});
}

TEST_F(SetOptionTest, ACheckBoxThatIsSetIsClearedByTheClickAndFails) {
  const std::int32_t box = Marked(kCheck, 7, 1);
  EXPECT_FALSE(SetOption("7", "Export", "1", kCheck, "", ""));
  EXPECT_EQ(At(box).check, 0);
  ExpectFailure(NotSet("0"));
}

TEST_F(SetOptionTest, AnyAnswerBut1Fails) {
  const std::int32_t option = Marked(kOption, 7, 0);
  for (const std::int32_t answer : {0, 2, -1}) {
    Answer(option, platform::BM_GETCHECK, answer);
    EXPECT_FALSE(SetOption("7", "Export", "1", kOption, "", ""));
    ExpectFailure(NotSet(std::to_string(answer)));
  }
}

TEST_F(SetOptionTest, WithAFrameTheControlIsLookedForBelowIt) {
  const std::int32_t outside = Marked(kOption, 7, 0);
  const std::int32_t inside = Marked(kOption, 7, 0, Child(kFrame, "", 19));
  EXPECT_TRUE(SetOption("7", "Export", "1", kOption, "19", kFrame));
  EXPECT_EQ(At(inside).check, 1);
  EXPECT_EQ(At(outside).check, 0);
}

TEST_F(SetOptionTest, WithoutAFrameClassTheFrameIsOfTheControlsClass) {
  Marked(kOption, 7, 0, Child(kFrame, "", 19));
  EXPECT_FALSE(SetOption("7", "Export", "1", kOption, "19", ""));
  ExpectNoControl();
  EXPECT_TRUE(SetOption("7", "Export", "1", kFrame, "19", ""));
}

TEST_F(SetOptionTest, ADirectChildWinsWhateverItsClass) {
  const std::int32_t deep = Marked(kOption, 7, 0, Child(kFrame, "", 3));
  const std::int32_t direct = Marked(kCheck, 7, 0);
  EXPECT_TRUE(SetOption("7", "Export", "1", kOption, "", ""));
  EXPECT_EQ(At(direct).check, 1);
  EXPECT_EQ(At(deep).check, 0);
}

TEST_F(SetOptionTest, ADeepControlIsFoundByClassAndId) {
  const std::int32_t frame = Child(kFrame, "", 3);
  Marked(kOption, 6, 0, frame);
  const std::int32_t deep = Marked(kOption, 7, 0, frame);
  EXPECT_TRUE(SetOption("7", "Export", "1", kOption, "", ""));
  EXPECT_EQ(At(deep).check, 1);
}

TEST_F(SetOptionTest, WithoutAControlItSaysSo) {
  EXPECT_FALSE(SetOption("7", "Export", "1", kOption, "", ""));
  ExpectNoControl();
  EXPECT_FALSE(SetOption("7", "Import", "1", kOption, "", ""));
  ExpectNoControl();
}

TEST_F(SetOptionTest, AControlOfTheFallbackIsReportedAsMissing) {
  Marked(kOption, 7, 0);
  EXPECT_FALSE(SetOption("7", "Import", "1", kOption, "", ""));
  ExpectNoControl();
}

TEST_F(SetOptionTest, AnIdThatIsNoNumberEndsInTheStandardHandler) {
  Marked(kOption, 7, 0);
  EXPECT_FALSE(SetOption("x", "Export", "1", kOption, "", ""));
  ExpectFailure("Fehler in Funktion SetOption:Typen unverträglich");
}

TEST_F(SetOptionTest, AControlThatVanishesByTheClickAnswers0) {
  VanishAt(Marked(kOption, 7, 0), platform::BM_CLICK);
  EXPECT_FALSE(SetOption("7", "Export", "1", kOption, "", ""));
  ExpectFailure(NotSet("0"));
}

TEST_F(SetOptionTest, AWindowThatClosesOnTheClickAnswers0) {
  const std::int32_t option = Marked(kOption, 7, 0);
  When(option, platform::BM_CLICK, [this](const Message&) {
    DestroyWindow(window_);
    return std::nullopt;
  });
  EXPECT_FALSE(SetOption("7", "Export", "1", kOption, "", ""));
  ExpectFailure(NotSet("0"));
}

TEST_F(SetOptionTest, AWindowThatVanishesDuringTheSearchIsNoWindow) {
  Marked(kOption, 7, 0, Child(kFrame, "", 19));
  Schedule(5, [this] { DestroyWindow(window_); });
  EXPECT_FALSE(SetOption("7", "Export", "1", kOption, "19", kFrame));
  ExpectNoControl();
}

TEST_F(SetOptionTest, TheVerbPassesItsSixArgumentsInOrder) {
  const std::int32_t option = Marked(kOption, 7, 0, Child(kFrame, "", 19));
  EXPECT_TRUE(RunLines({"SETOPTION=7,Expor,0,ThunderRT6OptionButton,19,ThunderRT6Frame"}));
  EXPECT_EQ(At(option).check, 1);
  ExpectLog(Completed({Set("1")}));
}

TEST_F(SetOptionTest, AFailureFailsTheRun) {
  EXPECT_FALSE(RunLines({"SETOPTION=7,Export,1", "MSG=nie"}));
  ExpectLog({"SetOption konnte das Control nicht finden"});
}

// "GETCHECK".

class GetCheckTest : public CheckTest {};

TEST_F(GetCheckTest, ABoxThatIsSetIsTrue) {
  const std::int32_t box = Marked(kCheck, 7, 1);
  EXPECT_TRUE(GetCheck("7", "Export", "1", kCheck, "", ""));
  ExpectLog({"Optionsfeld ist ausgewählt."});
  EXPECT_EQ(ReceivedNumbers(box), Numbers{platform::BM_GETCHECK});
}

TEST_F(GetCheckTest, ABoxThatIsClearIsFalseAndLastErrorStays) {
  run.LastError = "vorher";
  Marked(kCheck, 7, 0);
  EXPECT_FALSE(GetCheck("7", "Export", "1", kCheck, "", ""));
  ExpectLog({"Optionsfeld ist nicht ausgewählt."});
  EXPECT_EQ(run.LastError, "vorher");
}

TEST_F(GetCheckTest, AnyOtherStateIsAnErrorWithoutALogLine) {
  const std::int32_t box = Marked(kCheck, 7, 0);
  for (const std::int32_t answer : {2, -1, 256}) {
    run.LastError = "vorher";
    Answer(box, platform::BM_GETCHECK, answer);
    EXPECT_FALSE(GetCheck("7", "Export", "1", kCheck, "", ""));
    ExpectFailure("Fehler: Optionsfeld Status unbekannt.");
  }
}

TEST_F(GetCheckTest, ABoxThatIsMissingIsLoggedAndLastErrorStays) {
  run.LastError = "vorher";
  EXPECT_FALSE(GetCheck("7", "Export", "1", kCheck, "", ""));
  EXPECT_FALSE(GetCheck("7", "Import", "1", kCheck, "", ""));
  ExpectLog({"Optionsfeld konnte nicht gefunden werden.", "Optionsfeld konnte nicht gefunden werden."});
  EXPECT_EQ(run.LastError, "vorher");
}

TEST_F(GetCheckTest, WithAFrameTheBoxIsLookedForBelowIt) {
  Marked(kCheck, 16, 0);
  Marked(kCheck, 16, 1, Child(kFrame, "", 13));
  EXPECT_TRUE(GetCheck("16", "Export", "1", kCheck, "13", kFrame));
  EXPECT_FALSE(GetCheck("16", "Export", "1", kCheck, "", ""));
  ExpectLog({"Optionsfeld ist ausgewählt.", "Optionsfeld ist nicht ausgewählt."});
}

TEST_F(GetCheckTest, WithoutAFrameClassTheFrameIsOfTheControlsClass) {
  Marked(kCheck, 16, 1, Child(kFrame, "", 13));
  EXPECT_FALSE(GetCheck("16", "Export", "1", kCheck, "13", ""));
  ExpectLog({"Optionsfeld konnte nicht gefunden werden."});
}

TEST_F(GetCheckTest, AnIdThatIsNoNumberEndsInTheStandardHandler) {
  Marked(kCheck, 7, 1);
  EXPECT_FALSE(GetCheck("x", "Export", "1", kCheck, "", ""));
  ExpectFailure("Fehler in Funktion GetCheck:Typen unverträglich");
}

TEST_F(GetCheckTest, ABoxThatVanishesIsClear) {
  VanishAt(Marked(kCheck, 7, 1), platform::BM_GETCHECK);
  EXPECT_FALSE(GetCheck("7", "Export", "1", kCheck, "", ""));
  ExpectLog({"Optionsfeld ist nicht ausgewählt."});
}

TEST_F(GetCheckTest, TheVerbPassesItsSixArgumentsInOrder) {
  Marked(kCheck, 16, 1, Child(kFrame, "", 13));
  EXPECT_TRUE(RunLines({"GETCHECK=16,Expor,0,ThunderRT6CheckBox,13,ThunderRT6Frame"}));
  ExpectLog(Completed({"Optionsfeld ist ausgewählt."}));
}

TEST_F(GetCheckTest, ABoxThatIsClearFailsTheRunWithTheTextThatStood) {
  Marked(kCheck, 7, 0);
  EXPECT_FALSE(RunLines({"IF MENUCLICK=1,Import", "ENDIF", "GETCHECK=7,Export,1,ThunderRT6CheckBox", "MSG=nie"}));
  ExpectLog({"Optionsfeld ist nicht ausgewählt.", "Das Menu konnte nicht gefunden werden."});
}

// "SETCHECK".

class SetCheckTest : public CheckTest {
 protected:
  void ExpectNoBox() { ExpectFailure("Das Optionsfeld konnte nicht gefunden werden."); }
};

TEST_F(SetCheckTest, AnEmptyFifthArgumentFailsWhateverTheWindowHolds) {
  const std::int32_t box = Marked("Button", 7, 0);
  Marked("Button", 7, 0, Child(kFrame, "", 13));
  EXPECT_FALSE(SetCheck("1", "7", "Export", "1", ""));
  ExpectNoBox();
  EXPECT_FALSE(SetCheck("0", "7", "Export", "1", ""));
  ExpectNoBox();
  EXPECT_TRUE(At(box).received.empty());
}

TEST_F(SetCheckTest, ANumberIsTheIdOfTheFrame) {
  const std::int32_t outside = Marked(kCheck, 7, 0);
  const std::int32_t inside = Marked(kCheck, 7, 0, Child(kFrame, "", 13));
  EXPECT_TRUE(SetCheck("1", "7", "Export", "1", "13"));
  EXPECT_EQ(At(inside).check, 1);
  EXPECT_EQ(At(outside).check, 0);
  ExpectLog({Set("1")});
}

TEST_F(SetCheckTest, TheFirstChildStandsInForAFrameThatIsMissing) {
  const std::int32_t first = Child(kFrame, "", 12);
  const std::int32_t second = Child(kFrame, "", 14);
  const std::int32_t box = Marked(kCheck, 7, 0, first);
  const std::int32_t other = Marked(kCheck, 7, 0, second);
  EXPECT_TRUE(SetCheck("1", "7", "Export", "1", "13"));
  EXPECT_EQ(At(box).check, 1);
  EXPECT_EQ(At(other).check, 0);
}

TEST_F(SetCheckTest, BelowTheFrameOnlyADirectChildCounts) {
  Marked(kCheck, 7, 0, Child(kFrame, "", 2, Child(kFrame, "", 13)));
  EXPECT_FALSE(SetCheck("1", "7", "Export", "1", "13"));
  ExpectNoBox();
}

TEST_F(SetCheckTest, AWindowWithoutChildrenHasNoBox) {
  EXPECT_FALSE(SetCheck("1", "7", "Export", "1", "13"));
  ExpectNoBox();
  EXPECT_FALSE(SetCheck("1", "7", "Import", "1", "13"));
  ExpectNoBox();
}

TEST_F(SetCheckTest, ATextIsTheTextOfTheBox) {
  const std::int32_t frame = Child(kFrame, "", 13);
  const std::int32_t other = Child(kCheck, "IAS", 7, frame);
  const std::int32_t box = Child(kCheck, "Steuerrecht", 7, frame);
  EXPECT_TRUE(SetCheck("1", "7", "Export", "1", "STEUERRECHT"));
  EXPECT_EQ(At(box).check, 1);
  EXPECT_EQ(At(other).check, 0);
  ExpectLog({Set("1")});
}

TEST_F(SetCheckTest, ATextThatBeginsWithADigitIsNoFrame) {
  Marked(kCheck, 7, 0, Child(kFrame, "", 2));
  const std::int32_t box = Child(kCheck, "2. Halbjahr", 8);
  EXPECT_TRUE(SetCheck("1", "8", "Export", "1", "2. Halbjahr"));
  EXPECT_EQ(At(box).check, 1);
}

TEST_F(SetCheckTest, ATextWithTheIdOfAnotherBoxIsNotFound) {
  Child(kCheck, "Steuerrecht", 7);
  EXPECT_FALSE(SetCheck("1", "8", "Export", "1", "Steuerrecht"));
  ExpectNoBox();
}

TEST_F(SetCheckTest, AnIdThatIsNoNumberMeansAnyBoxOfTheText) {
  const std::int32_t box = Child(kCheck, "Steuerrecht", 7);
  EXPECT_TRUE(SetCheck("1", "", "Export", "1", "Steuerrecht"));
  EXPECT_EQ(At(box).check, 1);
}

TEST_F(SetCheckTest, TheThreeClassesAreTriedInTheirOrder) {
  const std::int32_t option = Child(kOption, "Feld", 7);
  EXPECT_TRUE(SetCheck("1", "7", "Export", "1", "Feld"));
  EXPECT_EQ(At(option).check, 1);
  const std::int32_t check = Child(kCheck, "Feld", 7);
  EXPECT_TRUE(SetCheck("1", "7", "Export", "1", "Feld"));
  EXPECT_EQ(At(check).check, 1);
  const std::int32_t button = Child("Button", "Feld", 7);
  At(button).style = BS_AUTOCHECKBOX;
  EXPECT_TRUE(SetCheck("1", "7", "Export", "1", "Feld"));
  EXPECT_EQ(At(button).check, 1);
}

TEST_F(SetCheckTest, ABoxOfAnotherClassIsNotFoundByItsText) {
  Child("BorButton", "Feld", 7);
  EXPECT_FALSE(SetCheck("1", "7", "Export", "1", "Feld"));
  ExpectNoBox();
}

TEST_F(SetCheckTest, ABoxThatIsSetIsClearedByTheClickAndFails) {
  const std::int32_t box = Marked(kCheck, 7, 1, Child(kFrame, "", 13));
  EXPECT_FALSE(SetCheck("1", "7", "Export", "1", "13"));
  EXPECT_EQ(At(box).check, 0);
  ExpectFailure(NotSet("0"));
}

TEST_F(SetCheckTest, SettingClicks) {
  const std::int32_t frame = Child(kFrame, "", 13);
  const std::int32_t box = Marked(kCheck, 7, 0, frame);
  EXPECT_TRUE(SetCheck("1", "7", "Export", "1", "13"));
  EXPECT_EQ(ReceivedNumbers(box), (Numbers{platform::BM_CLICK, platform::BM_GETCHECK}));
  ExpectCommand(frame, 7, box);
}

TEST_F(SetCheckTest, ClearingRaisesNoEvent) {
  const std::int32_t frame = Child(kFrame, "", 13);
  const std::int32_t box = Marked(kCheck, 7, 1, frame);
  EXPECT_TRUE(SetCheck("0", "7", "Export", "1", "13"));
  EXPECT_EQ(At(box).check, 0);
  ASSERT_EQ(ReceivedNumbers(box), (Numbers{platform::BM_SETCHECK, platform::BM_GETCHECK}));
  EXPECT_EQ(Received(box)[0].wParam, 0);
  EXPECT_FALSE(Command(frame).has_value());
  ExpectLog({Set("0")});
}

TEST_F(SetCheckTest, EveryOtherValueClears) {
  const std::int32_t frame = Child(kFrame, "", 13);
  const std::int32_t box = Marked(kCheck, 7, 0, frame);
  for (const char* value : {"", "2", "TRUE", " 1", "01", "1 "}) {
    At(box).check = 1;
    EXPECT_TRUE(SetCheck(value, "7", "Export", "1", "13")) << value;
    EXPECT_EQ(At(box).check, 0) << value;
  }
  ExpectLog(Lines(6, Set("0")));
}

TEST_F(SetCheckTest, ABoxThatStaysSetFailsWithItsAnswer) {
  const std::int32_t box = Marked(kCheck, 7, 1, Child(kFrame, "", 13));
  Answer(box, platform::BM_SETCHECK, 0);
  EXPECT_FALSE(SetCheck("0", "7", "Export", "1", "13"));
  ExpectFailure(NotSet("1"));
  Answer(box, platform::BM_GETCHECK, 2);
  EXPECT_FALSE(SetCheck("0", "7", "Export", "1", "13"));
  ExpectFailure(NotSet("2"));
  EXPECT_FALSE(SetCheck("1", "7", "Export", "1", "13"));
  ExpectFailure(NotSet("2"));
}

TEST_F(SetCheckTest, ANumberBeyond32BitsEndsInTheStandardHandler) {
  Marked(kCheck, 7, 1, Child(kFrame, "", 13));
  EXPECT_FALSE(SetCheck("1", "7", "Export", "1", "99999999999"));
  ExpectFailure("Fehler in Funktion SetCheck:Überlauf");
  EXPECT_FALSE(SetCheck("1", "99999999999", "Export", "1", "13"));
  ExpectFailure("Fehler in Funktion SetCheck:Überlauf");
}

TEST_F(SetCheckTest, AWindowInsideTheMainWindowIsReachedByItsCaption) {
  const std::int32_t inner = Child("ThunderRT6FormDC", "Auswahl", 100);
  const std::int32_t box = Marked(kCheck, 7, 0, Child(kFrame, "", 13, inner));
  EXPECT_TRUE(SetCheck("1", "7", "Auswahl", "1", "13"));
  EXPECT_EQ(At(box).check, 1);
}

TEST_F(SetCheckTest, ABoxThatVanishesByTheClickFailsWith0) {
  VanishAt(Marked(kCheck, 7, 0, Child(kFrame, "", 13)), platform::BM_CLICK);
  EXPECT_FALSE(SetCheck("1", "7", "Export", "1", "13"));
  ExpectFailure(NotSet("0"));
}

TEST_F(SetCheckTest, ABoxThatVanishesWhileItIsClearedIsClear) {
  VanishAt(Marked(kCheck, 7, 1, Child(kFrame, "", 13)), platform::BM_SETCHECK);
  EXPECT_TRUE(SetCheck("0", "7", "Export", "1", "13"));
  ExpectLog({Set("0")});
}

TEST_F(SetCheckTest, AWindowThatVanishesDuringTheSearchHasNoBox) {
  Marked(kCheck, 7, 1, Child(kFrame, "", 13));
  Schedule(5, [this] { DestroyWindow(window_); });
  EXPECT_FALSE(SetCheck("0", "7", "Export", "1", "13"));
  ExpectNoBox();
}

TEST_F(SetCheckTest, TheVerbPassesItsFiveArgumentsInOrderAndDoesNotLookAtTheSixth) {
  const std::int32_t box = Marked(kCheck, 7, 0, Child(kFrame, "", 13));
  EXPECT_TRUE(RunLines({"SETCHECK=1,7,Expor,0,13,ThunderRT6OptionButton"}));
  EXPECT_EQ(At(box).check, 1);
  ExpectLog(Completed({Set("1")}));
}

TEST_F(SetCheckTest, AFailureFailsTheRun) {
  EXPECT_FALSE(RunLines({"SETCHECK=1,7,Export,1", "MSG=nie"}));
  ExpectLog({"Das Optionsfeld konnte nicht gefunden werden."});
}

}  // namespace
