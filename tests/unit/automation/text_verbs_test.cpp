// The verbs that fill, compare and read texts.
#include "automation/text_verbs.h"

#include "automation/state.h"
#include "frame/frmStatus.h"
#include "unit/automation/control_test.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

// "SETTEXT".

class SetTextTest : public ControlTest {
 protected:
  // A control that answers WM_SETTEXT with this, and takes the text only if told.
  std::int32_t Answering(std::int32_t answer, bool takes) {
    const std::int32_t control = Child("Edit", "", 7);
    At(control).procedure = [=](const Message& message) -> std::optional<std::int32_t> {
      if (message.number != platform::WM_SETTEXT) return std::nullopt;
      if (takes) At(control).text = message.text;
      return answer;
    };
    return control;
  }

  void ExpectNotFilled(const std::string& answer) {
    EXPECT_EQ(run.LastError, "Das Textfeld konnte nicht ausgefüllt werden. (" + answer + ")");
    EXPECT_TRUE(Log().empty());
  }
};

TEST_F(SetTextTest, WithoutAClassTheDirectChildWithTheIdIsFilled) {
  const std::int32_t other = Child("Edit", "", 6);
  const std::int32_t field = Child("Edit", "alt", 7);
  EXPECT_TRUE(SetText("Größe", "7", "Export", "1", ""));
  EXPECT_EQ(At(field).text, "Größe");
  EXPECT_EQ(At(other).text, "");
  ExpectLog({"Das Textfeld wurde ausgefüllt (Größe)"});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(SetTextTest, WithoutAClassThereIsNoDeepSearch) {
  const std::int32_t frame = Child("ThunderRT6Frame", "", 3);
  const std::int32_t deep = Child("Edit", "alt", 7, frame);
  EXPECT_FALSE(SetText("neu", "7", "Export", "1", ""));
  EXPECT_EQ(At(deep).text, "alt");
  ExpectNotFilled("0");
}

TEST_F(SetTextTest, WithAClassTheFirstDescendantOfClassAndIdIsFilled) {
  const std::int32_t frame = Child("ThunderRT6Frame", "", 3);
  const std::int32_t deep = Child("ThunderRT6Textbox", "alt", 7, frame);
  const std::int32_t direct = Child("Edit", "alt", 7);
  EXPECT_TRUE(SetText("neu", "7", "Export", "1", "ThunderRT6Textbox"));
  EXPECT_EQ(At(deep).text, "neu");
  EXPECT_EQ(At(direct).text, "alt");
}

TEST_F(SetTextTest, WithAClassAndTheId0TheFirstOfTheClassIsFilled) {
  const std::int32_t field = Child("Edit", "alt", 7);
  EXPECT_TRUE(SetText("neu", "0", "Export", "1", "Edit"));
  EXPECT_EQ(At(field).text, "neu");
}

TEST_F(SetTextTest, AnEmptyTextEmptiesTheField) {
  const std::int32_t field = Child("Edit", "alt", 7);
  EXPECT_TRUE(SetText("", "7", "Export", "1", ""));
  EXPECT_EQ(At(field).text, "");
  ExpectLog({"Das Textfeld wurde ausgefüllt ()"});
}

TEST_F(SetTextTest, AControlThatAnswersAnythingBut1AndShowsTheTextCountsAsSuccess) {
  for (const std::int32_t answer : {0, 2, -1}) {
    DestroyWindow(window_);
    window_ = TargetWindow("Export");
    Answering(answer, true);
    EXPECT_TRUE(SetText("neu", "7", "Export", "1", "")) << answer;
  }
  ExpectLog(Lines(3, "Das Textfeld wurde ausgefüllt (neu)"));
}

TEST_F(SetTextTest, AControlThatAnswersOtherwiseAndDoesNotShowTheTextFailsWithItsAnswer) {
  Answering(-5, false);
  EXPECT_FALSE(SetText("neu", "7", "Export", "1", ""));
  ExpectNotFilled("-5");
}

TEST_F(SetTextTest, AnAnswerAbove1IsNoSuccess) {
  Answering(2, false);
  EXPECT_FALSE(SetText("neu", "7", "Export", "1", ""));
  ExpectNotFilled("2");
}

TEST_F(SetTextTest, TheReadBackMindsTheCase) {
  const std::int32_t field = Answering(0, false);
  At(field).text = "NEU";
  EXPECT_FALSE(SetText("neu", "7", "Export", "1", ""));
  ExpectNotFilled("0");
}

TEST_F(SetTextTest, AControlThatAnswers1IsNotReadBack) {
  const std::int32_t field = Answering(1, false);
  EXPECT_TRUE(SetText("neu", "7", "Export", "1", ""));
  EXPECT_EQ(At(field).text, "");
  for (const Message& message : At(field).received) EXPECT_NE(message.number, platform::WM_GETTEXT);
}

TEST_F(SetTextTest, AControlThatWasNotFoundFailsThroughTheReadBack) {
  EXPECT_FALSE(SetText("neu", "7", "Export", "1", ""));
  ExpectNotFilled("0");
}

TEST_F(SetTextTest, AnEmptyTextOnAControlThatWasNotFoundCountsAsSuccess) {
  EXPECT_TRUE(SetText("", "7", "Export", "1", ""));
  EXPECT_TRUE(SetText("", "7", "Import", "1", ""));
  ExpectLog({"Das Textfeld wurde ausgefüllt ()", "Das Textfeld wurde ausgefüllt ()"});
}

TEST_F(SetTextTest, ATextOf300CharactersIsReadBackAsItsFirst254) {
  Answering(0, true);
  EXPECT_FALSE(SetText(std::string(300, 'x'), "7", "Export", "1", ""));
  ExpectNotFilled("0");
  EXPECT_FALSE(SetText(std::string(255, 'x'), "7", "Export", "1", ""));
  EXPECT_TRUE(SetText(std::string(254, 'x'), "7", "Export", "1", ""));
}

TEST_F(SetTextTest, ATextOf300CharactersThatIsTakenWith1Succeeds) {
  const std::int32_t field = Child("Edit", "", 7);
  EXPECT_TRUE(SetText(std::string(300, 'x'), "7", "Export", "1", ""));
  EXPECT_EQ(At(field).text, std::string(300, 'x'));
}

TEST_F(SetTextTest, AnIdThatIsNoNumberMeansTheId0) {
  const std::int32_t field = Child("Edit", "alt", 0);
  EXPECT_TRUE(SetText("neu", "x", "Export", "1", ""));
  EXPECT_EQ(At(field).text, "neu");
}

TEST_F(SetTextTest, WithAClassAnIdThatIsNoNumberFindsNoWindow) {
  const std::int32_t field = Child("Edit", "alt", 7);
  EXPECT_FALSE(SetText("neu", "x", "Export", "1", "Edit"));
  EXPECT_EQ(At(field).text, "alt");
  // The search's own text is replaced by the verb's.
  ExpectNotFilled("0");
}

TEST_F(SetTextTest, AnIdBeyond32BitsEndsInTheStandardHandler) {
  EXPECT_FALSE(SetText("neu", "99999999999", "Export", "1", ""));
  EXPECT_EQ(run.LastError, "Fehler in Funktion SetText:Überlauf");
}

TEST_F(SetTextTest, AControlOfTheFallbackIsReportedAsMissing) {
  const std::int32_t field = Child("Edit", "alt", 7);
  EXPECT_FALSE(SetText("neu", "7", "Import", "1", "Edit"));
  EXPECT_EQ(At(field).text, "alt");
  ExpectNotFilled("0");
}

TEST_F(SetTextTest, AWindowInsideTheMainWindowIsReachedByItsCaption) {
  const std::int32_t inner = Child("ThunderRT6FormDC", "Mandant öffnen", 100);
  const std::int32_t field = Child("Edit", "alt", 7, inner);
  EXPECT_TRUE(SetText("neu", "7", "mandant ÖFFNEN", "1", ""));
  EXPECT_EQ(At(field).text, "neu");
}

TEST_F(SetTextTest, TheVerbPassesItsFiveArgumentsInOrder) {
  const std::int32_t field = Child("ThunderRT6Textbox", "alt", 7);
  EXPECT_TRUE(RunLines({"SETTEXT='a,b',7,Export,1,ThunderRT6Textbox"}));
  EXPECT_EQ(At(field).text, "a,b");
  ExpectLog(Completed({"Das Textfeld wurde ausgefüllt (a,b)"}));
}

TEST_F(SetTextTest, AFailedSetTextFailsTheRun) {
  EXPECT_FALSE(RunLines({"SETTEXT=neu,7,Export,1", "MSG=nie"}));
  ExpectLog({"Das Textfeld konnte nicht ausgefüllt werden. (0)"});
}

TEST_F(SetTextTest, APercentOneInTheTextIsKept) {
  Child("Edit", "", 7);
  EXPECT_TRUE(SetText("%1 und %1", "7", "Export", "1", ""));
  ExpectLog({"Das Textfeld wurde ausgefüllt (%1 und %1)"});
}

TEST_F(SetTextTest, WithAClassAnIdBeyond32BitsEndsThereToo) {
  EXPECT_FALSE(SetText("neu", "99999999999", "Export", "1", "Edit"));
  ExpectFailure("Fehler in Funktion SetText:Überlauf");
}

TEST_F(SetTextTest, AControlThatVanishesFailsThroughTheReadBack) {
  VanishAt(Child("Edit", "alt", 7), platform::WM_SETTEXT);
  EXPECT_FALSE(SetText("neu", "7", "Export", "1", ""));
  ExpectNotFilled("0");
}

TEST_F(SetTextTest, AWindowThatVanishesDuringTheSearchFailsThroughTheReadBack) {
  Child("Edit", "alt", 7);
  Schedule(5, [this] { DestroyWindow(window_); });
  EXPECT_FALSE(SetText("neu", "7", "Export", "1", "Edit"));
  ExpectNotFilled("0");
}

// "GETTEXT".

class GetTextTest : public ControlTest {
 protected:
  static std::string Words(const std::string& text) {
    return "Das Textfeld konnte nicht gelesen werden. (" + text + ")";
  }
};

TEST_F(GetTextTest, AMatchIsLoggedInWordsThatReadAsAFailure) {
  Child("Edit", "Müller", 7);
  EXPECT_TRUE(GetText("Müller", "7", "Export", "1"));
  ExpectLog({Words("Müller")});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(GetTextTest, ADifferentTextIsTheError) {
  Child("Edit", "Meier", 7);
  EXPECT_FALSE(GetText("Müller", "7", "Export", "1"));
  ExpectFailure(Words("Meier"));
}

TEST_F(GetTextTest, TheComparisonIsWholeAndMindsTheCase) {
  Child("Edit", "Müller", 7);
  for (const char* expected : {"müller", "MÜLLER", "Mül", "Müller ", ""})
    EXPECT_FALSE(GetText(expected, "7", "Export", "1")) << expected;
  ExpectFailure(Words("Müller"));
}

TEST_F(GetTextTest, AnEmptyFieldMatchesTheEmptyText) {
  Child("Edit", "", 7);
  EXPECT_TRUE(GetText("", "7", "Export", "1"));
  ExpectLog({Words("")});
}

TEST_F(GetTextTest, WithoutAControlNothingIsWritten) {
  run.LastError = "vorher";
  EXPECT_FALSE(GetText("Müller", "7", "Export", "1"));
  EXPECT_FALSE(GetText("Müller", "7", "Import", "1"));
  EXPECT_FALSE(GetText("", "7", "Import", "1"));
  ExpectFailure("vorher");
}

TEST_F(GetTextTest, ThereIsNoDeepSearch) {
  Child("Edit", "Müller", 7, Child("ThunderRT6Frame", "", 3));
  EXPECT_FALSE(GetText("Müller", "7", "Export", "1"));
  ExpectFailure("");
}

TEST_F(GetTextTest, ATextOf300CharactersIsReadAsItsFirst254) {
  Child("Edit", std::string(300, 'x'), 7);
  EXPECT_FALSE(GetText(std::string(300, 'x'), "7", "Export", "1"));
  EXPECT_FALSE(GetText(std::string(255, 'x'), "7", "Export", "1"));
  ExpectFailure(Words(std::string(254, 'x')));
  EXPECT_TRUE(GetText(std::string(254, 'x'), "7", "Export", "1"));
}

TEST_F(GetTextTest, TheBufferOf255CharactersIsHandedToTheControl) {
  const std::int32_t field = Child("Edit", "Müller", 7);
  EXPECT_TRUE(GetText("Müller", "7", "Export", "1"));
  ASSERT_EQ(ReceivedNumbers(field), Numbers{platform::WM_GETTEXT});
  EXPECT_EQ(Received(field)[0].wParam, 255);
}

TEST_F(GetTextTest, AnIdThatIsNoNumberMeansTheId0) {
  Child("Edit", "Müller", 0);
  EXPECT_TRUE(GetText("Müller", "x", "Export", "1"));
}

TEST_F(GetTextTest, AnIdBeyond32BitsEndsInTheStandardHandler) {
  EXPECT_FALSE(GetText("Müller", "99999999999", "Export", "1"));
  ExpectFailure("Fehler in Funktion GetText:Überlauf");
}

TEST_F(GetTextTest, ACountThatIsNoneEndsInTheStandardHandler) {
  const std::int32_t field = Child("Edit", "Müller", 7);
  Answer(field, platform::WM_GETTEXT, -1);
  EXPECT_FALSE(GetText("Müller", "7", "Export", "1"));
  ExpectFailure("Fehler in Funktion GetText:Ungültiger Prozeduraufruf oder ungültiges Argument");
  Answer(field, platform::WM_GETTEXT, 32768);
  EXPECT_FALSE(GetText("Müller", "7", "Export", "1"));
  ExpectFailure("Fehler in Funktion GetText:Überlauf");
}

TEST_F(GetTextTest, AControlThatVanishesShowsTheEmptyText) {
  VanishAt(Child("Edit", "Müller", 7), platform::WM_GETTEXT);
  EXPECT_FALSE(GetText("Müller", "7", "Export", "1"));
  ExpectFailure(Words(""));
}

TEST_F(GetTextTest, TheVerbsPassTheirFourArgumentsInOrder) {
  Child("Edit", "a,b", 7);
  EXPECT_TRUE(RunLines({"GETTEXT='a,b',7,Expor,0", "IF GETTEXT='a,b',7,Export,1", "MSG=ja", "ENDIF",
                        "IF GETTEXT=c,7,Export,1", "MSG=nie", "ELSE", "MSG=sonst", "ENDIF"}));
  ExpectLog(Completed({Words("a,b"), Words("a,b"), "MSG: ja", "MSG: sonst"}));
}

TEST_F(GetTextTest, ADifferentTextFailsTheRun) {
  Child("Edit", "Meier", 7);
  EXPECT_FALSE(RunLines({"GETTEXT=Müller,7,Export,1", "MSG=nie"}));
  ExpectLog({Words("Meier")});
}

TEST_F(GetTextTest, WithoutAControlTheRunFailsWithTheTextThatStood) {
  Child("Edit", "Meier", 7);
  EXPECT_FALSE(RunLines({"IF GETTEXT=Müller,7,Export,1", "ENDIF", "GETTEXT=Müller,8,Export,1"}));
  ExpectLog({Words("Meier")});
}

// "READTEXT".

class ReadTextTest : public ControlTest {
 protected:
  void ExpectNoControl() {
    ExpectFailure("ReadText konnte das Control nicht finden");
    EXPECT_EQ(automation.LastReadText, "");
  }

  void ExpectRead(const std::string& text) {
    EXPECT_EQ(automation.LastReadText, text);
    EXPECT_EQ(Log().back(), "ReadText: " + text);
  }
};

TEST_F(ReadTextTest, TheTextIsKeptAndLogged) {
  Child("Edit", "Größe", 7);
  EXPECT_TRUE(ReadText("7", "Export", "1", "Edit", "", ""));
  EXPECT_EQ(automation.LastReadText, "Größe");
  ExpectLog({"ReadText: Größe"});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(ReadTextTest, ADirectChildWinsWhateverItsClass) {
  Child("Edit", "innen", 7, Child("ThunderRT6Frame", "", 3));
  Child("Static", "außen", 7);
  EXPECT_TRUE(ReadText("7", "Export", "1", "Edit", "", ""));
  ExpectRead("außen");
}

TEST_F(ReadTextTest, ADeepControlIsFoundByClassAndId) {
  const std::int32_t inner = Child("ThunderRT6Frame", "", 3);
  Child("Edit", "anderer", 6, inner);
  Child("Edit", "innen", 7, inner);
  EXPECT_TRUE(ReadText("7", "Export", "1", "edit", "", ""));
  ExpectRead("innen");
}

TEST_F(ReadTextTest, WithoutAClassOnlyADirectChildIsFound) {
  Child("Edit", "außen", 8);
  Child("Edit", "innen", 7, Child("ThunderRT6Frame", "", 3));
  EXPECT_TRUE(ReadText("8", "Export", "1", "", "", ""));
  ExpectRead("außen");
  EXPECT_FALSE(ReadText("7", "Export", "1", "", "", ""));
  EXPECT_EQ(run.LastError, "ReadText konnte das Control nicht finden");
}

TEST_F(ReadTextTest, WithAFrameTheControlIsLookedForBelowIt) {
  Child("Edit", "außen", 20);
  const std::int32_t first = Child("ThunderRT6Frame", "", 18);
  Child("Edit", "im ersten", 20, first);
  const std::int32_t second = Child("ThunderRT6Frame", "", 19);
  Child("Edit", "im zweiten", 20, second);
  EXPECT_TRUE(ReadText("20", "Export", "1", "Edit", "19", "ThunderRT6Frame"));
  ExpectRead("im zweiten");
}

TEST_F(ReadTextTest, WithAFrameADeepControlIsFoundBelowIt) {
  Child("Edit", "außen", 20);
  const std::int32_t outer = Child("ThunderRT6Frame", "", 19);
  Child("Edit", "tief", 20, Child("ThunderRT6Frame", "", 2, outer));
  EXPECT_TRUE(ReadText("20", "Export", "1", "Edit", "19", "ThunderRT6Frame"));
  ExpectRead("tief");
}

TEST_F(ReadTextTest, WithAFrameAControlBesideItIsNotFound) {
  Child("ThunderRT6Frame", "", 19);
  Child("Edit", "außen", 20);
  EXPECT_FALSE(ReadText("20", "Export", "1", "Edit", "19", "ThunderRT6Frame"));
  ExpectNoControl();
}

TEST_F(ReadTextTest, TheClassOfTheControlIsThatOfTheFrameWhereNoneIsGiven) {
  Child("Edit", "innen", 20, Child("ThunderRT6Frame", "", 19));
  EXPECT_FALSE(ReadText("20", "Export", "1", "Edit", "19", ""));
  ExpectNoControl();
  EXPECT_TRUE(ReadText("20", "Export", "1", "ThunderRT6Frame", "19", ""));
  ExpectRead("innen");
}

TEST_F(ReadTextTest, AFrameClassWithoutAFrameIdDecidesTheSearchForTheWindow) {
  Child("Edit", "außen", 7);
  EXPECT_FALSE(ReadText("7", "Export", "1", "Edit", "", "ThunderRT6Frame"));
  ExpectNoControl();
  Child("ThunderRT6Frame", "", 7, Child("ThunderRT6Frame", "", 3));
  EXPECT_TRUE(ReadText("7", "Export", "1", "Edit", "", "ThunderRT6Frame"));
  ExpectRead("außen");
}

TEST_F(ReadTextTest, OfTwoWindowsOfTheTitleTheOneWithTheFrameCounts) {
  Child("Edit", "unten", 20, Child("ThunderRT6Frame", "", 19));
  const std::int32_t upper = AddWindow({.className = "X", .text = "Export"});
  Child("Edit", "oben", 20, upper);
  EXPECT_TRUE(ReadText("20", "Export", "1", "Edit", "19", "ThunderRT6Frame"));
  ExpectRead("unten");
}

TEST_F(ReadTextTest, OfTwoWindowsOfTheTitleTheOneWithTheControlsIdCounts) {
  Child("Edit", "unten", 7);
  const std::int32_t upper = AddWindow({.className = "X", .text = "Export"});
  Child("Edit", "oben", 6, upper);
  EXPECT_TRUE(ReadText("7", "Export", "1", "Edit", "", ""));
  ExpectRead("unten");
}

TEST_F(ReadTextTest, TheFrameClassIsNotThatOfTheControl) {
  Child("Edit", "innen", 7, Child("ThunderRT6Frame", "", 3));
  EXPECT_FALSE(ReadText("7", "Export", "1", "", "", "Edit"));
  ExpectNoControl();
}

TEST_F(ReadTextTest, WithoutAWindowItFails) {
  Child("Edit", "außen", 7);
  EXPECT_FALSE(ReadText("7", "Import", "1", "", "", ""));
  ExpectNoControl();
}

TEST_F(ReadTextTest, AControlOfTheFallbackIsReportedAsMissing) {
  Child("Edit", "außen", 7);
  Child("Edit", "innen", 20, Child("ThunderRT6Frame", "", 19));
  EXPECT_FALSE(ReadText("7", "Import", "1", "Edit", "", ""));
  ExpectNoControl();
  EXPECT_FALSE(ReadText("20", "Import", "1", "Edit", "19", "ThunderRT6Frame"));
  ExpectNoControl();
}

TEST_F(ReadTextTest, AnIdThatIsNoNumberMeansTheDirectChildWithTheId0) {
  Child("Edit", "null", 0);
  EXPECT_TRUE(ReadText("x", "Export", "1", "Edit", "", ""));
  ExpectRead("null");
}

TEST_F(ReadTextTest, AnIdThatIsNoNumberEndsOtherwiseInTheStandardHandler) {
  Child("Edit", "außen", 7);
  EXPECT_FALSE(ReadText("x", "Export", "1", "Edit", "", ""));
  ExpectFailure("Fehler in Funktion ReadText:Typen unverträglich");
  EXPECT_FALSE(ReadText("", "Export", "1", "Edit", "", ""));
  ExpectFailure("Fehler in Funktion ReadText:Typen unverträglich");
  EXPECT_FALSE(ReadText("99999999999", "Export", "1", "Edit", "", ""));
  ExpectFailure("Fehler in Funktion ReadText:Überlauf");
}

TEST_F(ReadTextTest, AFrameIdThatIsNoNumberFindsNoWindow) {
  Child("Edit", "innen", 20, Child("ThunderRT6Frame", "", 19));
  EXPECT_FALSE(ReadText("20", "Export", "1", "Edit", "x", "ThunderRT6Frame"));
  ExpectNoControl();
}

TEST_F(ReadTextTest, AFailureClearsWhatWasReadBefore) {
  automation.LastReadText = "alt";
  EXPECT_FALSE(ReadText("7", "Import", "1", "Edit", "", ""));
  ExpectNoControl();
}

TEST_F(ReadTextTest, ATextOf300CharactersIsReadAsItsFirst254) {
  Child("Edit", std::string(300, 'x'), 7);
  EXPECT_TRUE(ReadText("7", "Export", "1", "Edit", "", ""));
  ExpectRead(std::string(254, 'x'));
}

TEST_F(ReadTextTest, TheTextOfAComboBoxIsReadToo) {
  const std::int32_t box = Child("ThunderRT6ComboBox", "Euro", 20, Child("ThunderRT6Frame", "", 19));
  EXPECT_TRUE(ReadText("20", "Export", "1", "ThunderRT6ComboBox", "19", "ThunderRT6Frame"));
  ExpectRead("Euro");
  EXPECT_EQ(ReceivedNumbers(box), Numbers{platform::WM_GETTEXT});
}

TEST_F(ReadTextTest, AControlThatVanishesReadsAsTheEmptyText) {
  VanishAt(Child("Edit", "Text", 7), platform::WM_GETTEXT);
  EXPECT_TRUE(ReadText("7", "Export", "1", "Edit", "", ""));
  ExpectRead("");
}

TEST_F(ReadTextTest, AWindowThatVanishesDuringTheSearchIsNoWindow) {
  Child("Edit", "innen", 20, Child("ThunderRT6Frame", "", 19));
  Schedule(5, [this] { DestroyWindow(window_); });
  EXPECT_FALSE(ReadText("20", "Export", "1", "Edit", "19", "ThunderRT6Frame"));
  ExpectNoControl();
}

TEST_F(ReadTextTest, TheVerbPassesItsSixArgumentsInOrderAndTheTextIsItsValue) {
  Child("Edit", "innen", 20, Child("ThunderRT6Frame", "", 19));
  EXPECT_TRUE(RunLines({"DIM Text", "Text=READTEXT(20,Expor,0,Edit,19,ThunderRT6Frame)", "MSG=Text"}));
  ExpectLog(Completed({"ReadText: innen", "MSG: innen"}));
}

TEST_F(ReadTextTest, AFailureFailsTheRunAndEmptiesTheVariable) {
  EXPECT_FALSE(RunLines({"DIM Text", "Text=VALUE(alt)", "Text=READTEXT(7,Export,1)", "MSG=Text"}));
  frmStatus.cmdResume_Click();
  ExpectLog({"Variable wurde befüllt: alt", "ReadText konnte das Control nicht finden", "<Cancel>", "MSG: ", kCompleted,
             kStars});
}

// "GETPATHFROMCTL".

class GetPathFromCtlTest : public ControlTest {
 protected:
  void ExpectNoPath() { ExpectFailure("Pfad konnte nicht ermittelt werden."); }
};

TEST_F(GetPathFromCtlTest, TheTextIsKeptAndLogged) {
  Child("Static", "C:\\TeRu\\Größe", 7, Child("ThunderRT6Frame", "", 3));
  EXPECT_TRUE(GetPathFromCtl("7", "Export", "1", "STATIC"));
  EXPECT_EQ(automation.CtlPath, "C:\\TeRu\\Größe");
  ExpectLog({"GetPathFromCtl C:\\TeRu\\Größe"});
}

TEST_F(GetPathFromCtlTest, ADirectChildHasNoPrecedence) {
  Child("Edit", "tief", 7, Child("ThunderRT6Frame", "", 3));
  Child("Static", "außen", 7);
  EXPECT_TRUE(GetPathFromCtl("7", "Export", "1", "Edit"));
  EXPECT_EQ(automation.CtlPath, "tief");
}

TEST_F(GetPathFromCtlTest, WithoutAClassNothingIsFound) {
  Child("Edit", "außen", 7);
  EXPECT_FALSE(GetPathFromCtl("7", "Export", "1", ""));
  ExpectNoPath();
}

TEST_F(GetPathFromCtlTest, TheId0MeansTheFirstOfTheClass) {
  Child("Edit", "erster", 7);
  Child("Edit", "zweiter", 8);
  EXPECT_TRUE(GetPathFromCtl("0", "Export", "1", "Edit"));
  EXPECT_EQ(automation.CtlPath, "erster");
}

TEST_F(GetPathFromCtlTest, AFailureKeepsThePathThatWasRead) {
  automation.CtlPath = "alt";
  EXPECT_FALSE(GetPathFromCtl("7", "Export", "1", "Edit"));
  EXPECT_FALSE(GetPathFromCtl("7", "Import", "1", "Edit"));
  ExpectNoPath();
  EXPECT_EQ(automation.CtlPath, "alt");
}

TEST_F(GetPathFromCtlTest, AnIdThatIsNoNumberFindsNoWindow) {
  Child("Edit", "außen", 7);
  EXPECT_FALSE(GetPathFromCtl("x", "Export", "1", "Edit"));
  ExpectNoPath();
}

TEST_F(GetPathFromCtlTest, AnIdThatIsNoNumberEndsWithoutAClassInTheStandardHandler) {
  EXPECT_FALSE(GetPathFromCtl("x", "Export", "1", ""));
  ExpectFailure("Fehler in Funktion GetPathFromCtl:Typen unverträglich");
}

TEST_F(GetPathFromCtlTest, AControlOfTheFallbackIsReportedAsMissing) {
  Child("Edit", "außen", 7);
  EXPECT_FALSE(GetPathFromCtl("7", "Import", "1", "Edit"));
  ExpectNoPath();
}

TEST_F(GetPathFromCtlTest, ATextOf300CharactersIsReadAsItsFirst254) {
  Child("Edit", std::string(300, 'x'), 7);
  EXPECT_TRUE(GetPathFromCtl("7", "Export", "1", "Edit"));
  EXPECT_EQ(automation.CtlPath, std::string(254, 'x'));
}

TEST_F(GetPathFromCtlTest, AControlThatVanishesReadsAsTheEmptyText) {
  VanishAt(Child("Edit", "Text", 7), platform::WM_GETTEXT);
  EXPECT_TRUE(GetPathFromCtl("7", "Export", "1", "Edit"));
  EXPECT_EQ(automation.CtlPath, "");
  ExpectLog({"GetPathFromCtl "});
}

TEST_F(GetPathFromCtlTest, TheVerbPassesItsFourArgumentsInOrderAndFillsTheVariable) {
  Child("Edit", "C:\\TeRu", 7);
  EXPECT_TRUE(RunLines({"MSG=<$CTLPATH>", "GETPATHFROMCTL=7,Expor,0,Edit", "MSG=$CTLPATH\\4711"}));
  ExpectLog(Completed({"MSG: <>", "GetPathFromCtl C:\\TeRu", "MSG: C:\\TeRu\\4711"}));
}

TEST_F(GetPathFromCtlTest, AFailureFailsTheRun) {
  EXPECT_FALSE(RunLines({"GETPATHFROMCTL=7,Export,1,Edit", "MSG=nie"}));
  ExpectLog({"Pfad konnte nicht ermittelt werden."});
}

}  // namespace
