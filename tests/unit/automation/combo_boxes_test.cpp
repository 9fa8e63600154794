// Selecting in combo boxes and reading them.
#include "automation/combo_boxes.h"

#include "automation/state.h"
#include "frame/frmStatus.h"
#include "unit/automation/control_test.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

const char* const kRead = "Die Auswahl der Combobox konnte erfolgreich ausgeführt werden.";
const char* const kNotSelected = "Der Eintrag aus der Combobox konnte nicht ausgewählt werden.";
const char* const kTextNotRead = "Der Text aus der Combobox konnte nicht gelesen werden.";
const char* const kInvalidCall = "Ungültiger Prozeduraufruf oder ungültiges Argument";

class ComboTest : public ControlTest {
 protected:
  std::int32_t Combo(std::int32_t id, const Lines& entries, std::int32_t parent = 0,
                     const std::string& cls = "ComboBox") {
    const std::int32_t combo = Child(cls, "", id, parent);
    At(combo).entries = entries;
    return combo;
  }

  static std::string Handles(std::int32_t combo, std::int32_t parent) {
    return "Select Combo-> HWNDCTL: " + std::to_string(combo) + "Parent: " + std::to_string(parent);
  }
  static std::string Selected(const std::string& value) { return kRead + (" Sel: " + value); }

  static void ExpectNotSelected(const std::string& value,
                                std::source_location where = std::source_location::current()) {
    const testing::ScopedTrace trace(where.file_name(), static_cast<int>(where.line()), "");
    EXPECT_EQ(run.LastError, kNotSelected + (" Sel: " + value));
  }

  // Both notifications, in their order, and nothing else.
  static void ExpectNotified(std::int32_t parent, std::int32_t id, std::int32_t combo,
                             std::source_location where = std::source_location::current()) {
    const testing::ScopedTrace trace(where.file_name(), static_cast<int>(where.line()), "");
    const auto& received = At(parent).received;
    ASSERT_EQ(received.size(), 2u);
    EXPECT_EQ(received[0].number, platform::WM_COMMAND);
    EXPECT_EQ(received[0].wParam, 0x10000 + id);
    EXPECT_EQ(received[0].lParam, combo);
    EXPECT_EQ(received[1].number, platform::WM_COMMAND);
    EXPECT_EQ(received[1].wParam, 0x90000 + id);
    EXPECT_EQ(received[1].lParam, combo);
  }
};

// Selecting by index.

class SelectIndexTest : public ComboTest {
 protected:
  bool Select(const std::string& index, const std::string& id = "7", const std::string& window = "Export") {
    return SelectCombo(true, index, id, window, "1", "", "");
  }
};

TEST_F(SelectIndexTest, TheEntryIsSelectedAndTheFormIsToldTwice) {
  const std::int32_t combo = Combo(7, {"a", "b", "c"});
  EXPECT_TRUE(Select("2"));
  EXPECT_EQ(At(combo).selection, 2);
  ExpectNotified(window_, 7, combo);
  ExpectLog({Handles(combo, window_), Selected("2")});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(SelectIndexTest, TheIndexIsSentAndNothingIsSearchedFor) {
  const std::int32_t combo = Combo(7, {"a", "b", "c"});
  EXPECT_TRUE(Select("1"));
  EXPECT_EQ(ReceivedNumbers(combo), Numbers{platform::CB_SETCURSEL});
}

TEST_F(SelectIndexTest, TheParentIsTheFrameAroundIt) {
  const std::int32_t frame = Child("ThunderRT6Frame", "", 19);
  const std::int32_t combo = Combo(7, {"a"}, frame);
  EXPECT_TRUE(Select("0"));
  ExpectNotified(frame, 7, combo);
  EXPECT_TRUE(At(window_).received.empty());
  ExpectLog({Handles(combo, frame), Selected("0")});
}

TEST_F(SelectIndexTest, TheFormHasHandledBothWhenTheVerbReturns) {
  Combo(7, {"a"});
  int handled = 0;
  When(window_, platform::WM_COMMAND, [&](const Message&) {
    ++handled;
    return 0;
  });
  EXPECT_TRUE(Select("0"));
  EXPECT_EQ(handled, 2);
}

TEST_F(SelectIndexTest, AnIndexThatIsNoNumberSelectsTheFirstEntry) {
  const std::int32_t combo = Combo(7, {"a", "b"});
  for (const char* index : {"x", "", "1."}) {
    At(combo).selection = 1;
    EXPECT_TRUE(Select(index)) << index;
    EXPECT_EQ(At(combo).selection, 0) << index;
  }
  EXPECT_EQ(Log()[1], Selected("x"));
}

TEST_F(SelectIndexTest, AnIndexBeyondTheListFails) {
  const std::int32_t combo = Combo(7, {"a", "b"});
  EXPECT_FALSE(Select("2"));
  ExpectNotSelected("2");
  EXPECT_TRUE(At(window_).received.empty());
  ExpectLog({Handles(combo, window_)});
}

TEST_F(SelectIndexTest, AnEmptyListHasNoFirstEntry) {
  Combo(7, {});
  EXPECT_FALSE(Select("0"));
  ExpectNotSelected("0");
}

TEST_F(SelectIndexTest, TheIndexMinus1ClearsTheSelectionAndSucceeds) {
  const std::int32_t combo = Combo(7, {"a", "b"});
  At(combo).selection = 1;
  EXPECT_TRUE(Select("-1"));
  EXPECT_EQ(At(combo).selection, -1);
  ExpectNotified(window_, 7, combo);
  ExpectLog({Handles(combo, window_), Selected("-1")});
}

TEST_F(SelectIndexTest, AnAnswerOtherThanTheIndexFails) {
  Answer(Combo(7, {"a", "b"}), platform::CB_SETCURSEL, 1);
  EXPECT_FALSE(Select("0"));
  ExpectNotSelected("0");
  EXPECT_TRUE(Select("1"));
}

TEST_F(SelectIndexTest, WithoutAComboBoxTheHandlesStandAs0) {
  EXPECT_FALSE(Select("0"));
  EXPECT_FALSE(Select("0", "7", "Import"));
  ExpectNotSelected("0");
  ExpectLog({Handles(0, 0), Handles(0, 0)});
}

TEST_F(SelectIndexTest, ADirectChildWithTheIdHasNoPrecedence) {
  const std::int32_t combo = Combo(7, {"a", "b"}, Child("ThunderRT6Frame", "", 3));
  Child("Static", "", 7);
  EXPECT_TRUE(Select("1"));
  EXPECT_EQ(At(combo).selection, 1);
}

TEST_F(SelectIndexTest, TheId0MeansTheFirstOfTheClass) {
  const std::int32_t first = Combo(7, {"a", "b"});
  Combo(8, {"a", "b"});
  EXPECT_TRUE(Select("1", "0"));
  EXPECT_EQ(At(first).selection, 1);
  ExpectNotified(window_, 0, first);
}

TEST_F(SelectIndexTest, AnIdThatIsNoNumberFindsNoWindow) {
  Combo(7, {"a"});
  EXPECT_FALSE(Select("0", "x"));
  ExpectNotSelected("0");
  EXPECT_FALSE(Select("0", ""));
  ExpectLog({Handles(0, 0), Handles(0, 0)});
}

TEST_F(SelectIndexTest, AControlOfTheFallbackIsReportedAsMissing) {
  Combo(7, {"a"});
  EXPECT_FALSE(Select("0", "7", "Import"));
  ExpectLog({Handles(0, 0)});
}

TEST_F(SelectIndexTest, AnIdAbove32767EndsInTheStandardHandlerWhenTheFormIsToBeTold) {
  const std::int32_t combo = Combo(40000, {"a", "b"});
  EXPECT_FALSE(Select("1", "40000"));
  EXPECT_EQ(run.LastError, "Fehler in Funktion SelectCombo:Überlauf");
  EXPECT_EQ(At(combo).selection, 1);
  EXPECT_TRUE(At(window_).received.empty());
  ExpectLog({Handles(combo, window_)});
}

TEST_F(SelectIndexTest, TheLargestId) {
  const std::int32_t combo = Combo(32767, {"a"});
  EXPECT_TRUE(Select("0", "32767"));
  ExpectNotified(window_, 32767, combo);
}

TEST_F(SelectIndexTest, NumbersBeyond32BitsEndInTheStandardHandler) {
  Combo(7, {"a"});
  EXPECT_FALSE(Select("99999999999"));
  ExpectFailure("Fehler in Funktion SelectCombo:Überlauf");
  EXPECT_FALSE(Select("0", "99999999999"));
  ExpectFailure("Fehler in Funktion SelectCombo:Überlauf");
}

TEST_F(SelectIndexTest, TheParentIsAskedAnewForTheSecondNotification) {
  const std::int32_t combo = Combo(7, {"a"});
  When(window_, platform::WM_COMMAND, [combo](const Message&) {
    DestroyWindow(combo);
    return 0;
  });
  EXPECT_TRUE(Select("0"));
  EXPECT_EQ(At(window_).received.size(), 1u);
  ExpectLog({Handles(combo, window_), Selected("0")});
}

TEST_F(SelectIndexTest, AComboBoxThatVanishesAnswers0) {
  VanishAt(Combo(7, {"a", "b"}), platform::CB_SETCURSEL);
  EXPECT_FALSE(Select("1"));
  ExpectNotSelected("1");
}

TEST_F(SelectIndexTest, AWindowThatVanishesDuringTheSearchIsNoWindow) {
  Combo(7, {"a", "b"});
  Schedule(5, [this] { DestroyWindow(window_); });
  EXPECT_FALSE(Select("1"));
  ExpectNotSelected("1");
  ExpectLog({Handles(0, 0)});
}

// Selecting by text.

class SelectTextTest : public ComboTest {
 protected:
  bool Select(const std::string& text, const std::string& cls = "") {
    return SelectCombo(false, text, "7", "Export", "1", "", cls);
  }
};

TEST_F(SelectTextTest, TheEntryIsSearchedFromTheStart0AndSelected) {
  const std::int32_t combo = Combo(7, {"IAS", "Handelsrecht", "Steuerrecht"});
  EXPECT_TRUE(Select("Steuerrecht"));
  EXPECT_EQ(At(combo).selection, 2);
  ASSERT_EQ(ReceivedNumbers(combo), (Numbers{platform::CB_FINDSTRING, platform::CB_SETCURSEL}));
  EXPECT_EQ(Received(combo)[0].wParam, 0);
  EXPECT_EQ(Received(combo)[0].text, "Steuerrecht");
  EXPECT_EQ(Received(combo)[1].wParam, 2);
  ExpectNotified(window_, 7, combo);
  ExpectLog({Handles(combo, window_), Selected("Steuerrecht")});
}

TEST_F(SelectTextTest, OfTwoFittingEntriesTheLaterOneBeatsTheFirstOfTheList) {
  const std::int32_t combo = Combo(7, {"2005", "2005/2006"});
  EXPECT_TRUE(Select("2005"));
  EXPECT_EQ(At(combo).selection, 1);
}

TEST_F(SelectTextTest, TheBeginningOfOneEntrySelectsIt) {
  const std::int32_t combo = Combo(7, {"Handelsrecht", "Steuerrecht"});
  EXPECT_TRUE(Select("handels"));
  EXPECT_EQ(At(combo).selection, 0);
  ExpectLog({Handles(combo, window_), Selected("handels")});
}

TEST_F(SelectTextTest, AnEntryThatHoldsTheTextInTheMiddleDoesNotFit) {
  const std::int32_t combo = Combo(7, {"Handelsrecht", "Steuerrecht"});
  EXPECT_FALSE(Select("recht"));
  ExpectNotSelected("recht");
  EXPECT_EQ(At(combo).selection, -1);
  EXPECT_EQ(ReceivedNumbers(combo), Numbers{platform::CB_FINDSTRING});
  EXPECT_TRUE(At(window_).received.empty());
}

TEST_F(SelectTextTest, ANumberIsATextHere) {
  const std::int32_t combo = Combo(7, {"x", "y", "1"});
  EXPECT_TRUE(Select("1"));
  EXPECT_EQ(At(combo).selection, 2);
}

TEST_F(SelectTextTest, ANumberMayBeBeyond32Bits) {
  const std::int32_t combo = Combo(7, {"x", "DE99999999999"});
  EXPECT_FALSE(Select("99999999999"));
  ExpectNotSelected("99999999999");
  At(combo).entries.push_back("99999999999");
  EXPECT_TRUE(Select("99999999999"));
  EXPECT_EQ(At(combo).selection, 2);
}

TEST_F(SelectTextTest, AReplyOtherThanTheFoundIndexFails) {
  Answer(Combo(7, {"a", "b"}), platform::CB_SETCURSEL, 0);
  EXPECT_FALSE(Select("b"));
  ExpectNotSelected("b");
}

TEST_F(SelectTextTest, TheClassIsComboBoxByDefault) {
  const std::int32_t other = Combo(7, {"a"}, 0, "ThunderRT6ComboBox");
  const std::int32_t combo = Combo(7, {"a"});
  EXPECT_TRUE(Select("a"));
  EXPECT_EQ(At(combo).selection, 0);
  EXPECT_TRUE(Select("a", "ThunderRT6ComboBox"));
  EXPECT_EQ(At(other).selection, 0);
}

TEST_F(SelectTextTest, AComboBoxThatVanishesBetweenSearchAndSelectionAnswers0) {
  VanishAt(Combo(7, {"a", "b"}), platform::CB_SETCURSEL);
  EXPECT_FALSE(Select("b"));
  ExpectNotSelected("b");
}

TEST_F(SelectTextTest, AComboBoxThatVanishesAtOnceLooksLikeItsFirstEntrySelected) {
  VanishAt(Combo(7, {"a", "b"}), platform::CB_FINDSTRING);
  EXPECT_TRUE(Select("b"));
  EXPECT_TRUE(At(window_).received.empty());
}

// What the four selecting verbs take from the line.

class SelectVerbTest : public ComboTest {
 protected:
  // Two combo boxes of one id, told apart by class.
  SelectVerbTest() : plain_(Combo(7, {"a", "b"})), other_(Combo(7, {"a", "b"}, 0, "ThunderRT6ComboBox")) {}

  void ExpectSelected(std::int32_t plain, std::int32_t other) {
    EXPECT_EQ(At(plain_).selection, plain);
    EXPECT_EQ(At(other_).selection, other);
  }

  const std::int32_t plain_, other_;
};

TEST_F(SelectVerbTest, SelectcomboTakesTextAndClass) {
  EXPECT_TRUE(RunLines({"SELECTCOMBO=b,7,Expor,0,,ThunderRT6ComboBox"}));
  ExpectSelected(-1, 1);
  EXPECT_FALSE(RunLines({"SELECTCOMBO=b,7,Expor,0,Jahr,ThunderRT6ComboBox"}));
  ExpectNotSelected("b");
}

TEST_F(SelectVerbTest, IfSelectcomboTakesNeither) {
  EXPECT_TRUE(RunLines({"IF SELECTCOMBO=b,7,Expor,0,Jahr,ThunderRT6ComboBox", "MSG=ja", "ENDIF"}));
  ExpectSelected(1, -1);
  ExpectLog(Completed({Handles(plain_, window_), Selected("b"), "MSG: ja"}));
}

TEST_F(SelectVerbTest, SelectcomboindexTakesNeither) {
  EXPECT_TRUE(RunLines({"SELECTCOMBOINDEX=1,7,Expor,0,Jahr,ThunderRT6ComboBox"}));
  ExpectSelected(1, -1);
  ExpectLog(Completed({Handles(plain_, window_), Selected("1")}));
}

TEST_F(SelectVerbTest, IfSelectcomboindexTakesTextAndClass) {
  EXPECT_TRUE(
      RunLines({"IF SELECTCOMBOINDEX=1,7,Expor,0,,ThunderRT6ComboBox", "MSG=ja", "ENDIF",
                "IF SELECTCOMBOINDEX=1,7,Expor,0,Jahr,ThunderRT6ComboBox", "MSG=nie", "ELSE", "MSG=sonst", "ENDIF"}));
  ExpectSelected(-1, 1);
  ExpectLog(Completed({Handles(other_, window_), Selected("1"), "MSG: ja", Handles(0, 0), "MSG: sonst"}));
}

TEST_F(SelectVerbTest, ATextOfTheControlIsCompared) {
  const std::int32_t named = Child("Auswahl", "Jahr", 9);
  Answer(named, platform::CB_SETCURSEL, 1);
  EXPECT_TRUE(RunLines({"IF SELECTCOMBOINDEX=1,9,Export,1,jahr,Auswahl", "MSG=ja", "ENDIF"}));
  ExpectLog(Completed({Handles(named, window_), Selected("1"), "MSG: ja"}));
}

TEST_F(SelectVerbTest, AFailureFailsTheRunOrTakesTheOtherBranch) {
  EXPECT_TRUE(RunLines({"IF SELECTCOMBO=x,7,Export,1", "MSG=nie", "ELSE", "MSG=sonst", "ENDIF"}));
  ExpectLog(Completed({Handles(plain_, window_), "MSG: sonst"}));
  EXPECT_FALSE(RunLines({"SELECTCOMBOINDEX=2,7,Export,1", "MSG=nie"}));
  EXPECT_EQ(Log().back(), kNotSelected + std::string(" Sel: 2"));
}

// "READCOMBO".

class ReadComboTest : public ComboTest {
 protected:
  bool Read(const std::string& id = "7", const std::string& cls = "ComboBox") {
    return ReadCombo(id, cls, "Export", "1", "", "");
  }
};

TEST_F(ReadComboTest, EveryEntryIsFollowedByASemicolon) {
  Combo(7, {"2004", "2005", "", "2006"});
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, "2004;2005;;2006;");
  ExpectLog({kRead + std::string(" 2004;2005;;2006;...")});
  EXPECT_EQ(run.LastError, "");
}

TEST_F(ReadComboTest, AnEmptyListGivesTheEmptyText) {
  automation.ComboItems = "alt;";
  Combo(7, {});
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, "");
  ExpectLog({kRead + std::string(" ...")});
}

TEST_F(ReadComboTest, TheLogHoldsTheFirst50Characters) {
  Combo(7, {std::string(48, 'x'), "abc"});
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, std::string(48, 'x') + ";abc;");
  ExpectLog({kRead + (" " + std::string(48, 'x')) + ";a..."});
}

TEST_F(ReadComboTest, ASemicolonInAnEntryIsNotEscaped) {
  Combo(7, {"a;b", "c"});
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, "a;b;c;");
}

TEST_F(ReadComboTest, LongEntriesAreWhole) {
  Combo(7, {std::string(5000, 'x')});
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, std::string(5000, 'x') + ";");
}

TEST_F(ReadComboTest, WithoutAComboBoxItFailsAndTheOldItemsAreGone) {
  automation.ComboItems = "alt;";
  EXPECT_FALSE(Read());
  ExpectFailure(kNotSelected);
  EXPECT_EQ(automation.ComboItems, "");
}

TEST_F(ReadComboTest, TheClassHasNoDefault) {
  Combo(7, {"a"});
  EXPECT_FALSE(Read("7", ""));
  ExpectFailure(kNotSelected);
}

TEST_F(ReadComboTest, AnIdThatIsNoNumberFindsNoWindow) {
  Combo(7, {"a"});
  EXPECT_FALSE(Read("x"));
  ExpectFailure(kNotSelected);
}

TEST_F(ReadComboTest, TheFrameIdDecidesTheSearchForTheWindowOnly) {
  Combo(20, {"unten"});
  Combo(19, {});
  const std::int32_t upper = AddWindow({.className = "X", .text = "Export"});
  Combo(20, {"oben"}, upper);
  EXPECT_TRUE(ReadCombo("20", "ComboBox", "Export", "1", "", "19"));
  EXPECT_EQ(automation.ComboItems, "unten;");
  EXPECT_TRUE(ReadCombo("20", "ComboBox", "Export", "1", "", ""));
  EXPECT_EQ(automation.ComboItems, "oben;");
}

TEST_F(ReadComboTest, WithAFrameIdAnIdThatIsNoNumberEndsInTheStandardHandler) {
  Combo(19, {"a"});
  EXPECT_FALSE(ReadCombo("x", "ComboBox", "Export", "1", "", "19"));
  ExpectFailure("Fehler in Funktion ReadCombo:Typen unverträglich");
}

TEST_F(ReadComboTest, ANegativeLengthEndsInTheStandardHandler) {
  const std::int32_t combo = Combo(7, {"a"});
  for (const std::int32_t length : {-1, -2}) {
    run.LastError.clear();
    Answer(combo, platform::CB_GETLBTEXTLEN, length);
    EXPECT_FALSE(Read());
    ExpectFailure(std::string("Fehler in Funktion ReadCombo:") + kInvalidCall);
  }
}

TEST_F(ReadComboTest, ALengthThatNoBufferCanHaveEndsInTheStandardHandler) {
  Answer(Combo(7, {"a"}), platform::CB_GETLBTEXTLEN, 0x7FFFFFFF);
  EXPECT_FALSE(Read());
  ExpectFailure("Fehler in Funktion ReadCombo:Nicht genügend Speicher");
}

TEST_F(ReadComboTest, ACountThatNoListCanHaveEndsInTheStandardHandler) {
  const std::int32_t combo = Combo(7, {"a"});
  Answer(combo, platform::CB_GETCOUNT, 0x7FFFFFFF);
  EXPECT_FALSE(Read());
  ExpectFailure("Fehler in Funktion ReadCombo:Nicht genügend Speicher");
  EXPECT_EQ(ReceivedNumbers(combo), Numbers{platform::CB_GETCOUNT});
}

TEST_F(ReadComboTest, AListThatShrinksEndsInTheStandardHandler) {
  const std::int32_t combo = Combo(7, {"a", "b", "c"});
  When(combo, platform::CB_GETLBTEXTLEN, [combo](const Message& message) {
    if (message.wParam == 1) At(combo).entries.resize(1);
    return std::nullopt;
  });
  EXPECT_FALSE(Read());
  ExpectFailure(std::string("Fehler in Funktion ReadCombo:") + kInvalidCall);
}

TEST_F(ReadComboTest, AnEntryOfMoreCharactersThanWereToldIsCutWhateverIsAnswered) {
  const std::int32_t combo = Combo(7, {std::string(300000, 'x')});
  Answer(combo, platform::CB_GETLBTEXTLEN, 5);
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, "xxxxx;");
  for (const std::int32_t answer : {0x7FFFFFFF, 6, 5}) {
    Answer(combo, platform::CB_GETLBTEXT, answer);
    EXPECT_TRUE(Read()) << answer;
    EXPECT_EQ(automation.ComboItems.size(), 6u) << answer;
  }
}

TEST_F(ReadComboTest, ACountOfMinus1IsNoEntry) {
  Answer(Combo(7, {"a"}), platform::CB_GETCOUNT, -1);
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, "");
}

TEST_F(ReadComboTest, AnEntryThatIsShorterThanItsLengthWasToldIsCut) {
  Answer(Combo(7, {"kurz"}), platform::CB_GETLBTEXTLEN, 100);
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, "kurz;");
}

TEST_F(ReadComboTest, AnEntryThatHasGrownIsCutToTheToldLength) {
  Answer(Combo(7, {"gewachsen"}), platform::CB_GETLBTEXTLEN, 3);
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, "gew;");
}

TEST_F(ReadComboTest, AComboBoxThatVanishesInTheMiddleLeavesEmptyEntries) {
  const std::int32_t combo = Combo(7, {"a", "b", "c"});
  When(combo, platform::CB_GETLBTEXTLEN, [combo](const Message& message) {
    if (message.wParam == 1) DestroyWindow(combo);
    return std::nullopt;
  });
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, "a;;;");
}

TEST_F(ReadComboTest, AComboBoxThatVanishesAtOnceHasNoEntries) {
  VanishAt(Combo(7, {"a"}), platform::CB_GETCOUNT);
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.ComboItems, "");
}

TEST_F(ReadComboTest, TheVerbPassesItsSixArgumentsInOrder) {
  const std::int32_t named = Child("Auswahl", "Jahr", 20);
  Answer(named, platform::CB_GETCOUNT, 0);
  Child("Auswahl", "Jahr", 19);
  EXPECT_TRUE(RunLines({"READCOMBO=20,Auswahl,Expor,0,Jahr,19"}));
  ExpectLog(Completed({kRead + std::string(" ...")}));
  EXPECT_FALSE(RunLines({"READCOMBO=20,Auswahl,Expor,0,Monat,19"}));
  EXPECT_FALSE(RunLines({"READCOMBO=20,Auswahl,Expor,0,Jahr,18"}));
  EXPECT_EQ(run.LastError, kNotSelected);
}

// "READCOMBOTEXT".

class ReadComboTextTest : public ComboTest {
 protected:
  bool Read(const std::string& id = "7", const std::string& cls = "ComboBox") {
    return ReadComboText(id, "Export", "1", cls, "");
  }
};

TEST_F(ReadComboTextTest, TheSelectedEntryIsKeptAndLogged) {
  const std::int32_t combo = Combo(7, {"2004", "2005"});
  At(combo).selection = 1;
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.LastReadText, "2005");
  ExpectLog({"Der Text aus der Combobox wurde erfolgreich gelesen. 2005"});
}

TEST_F(ReadComboTextTest, AComboBoxWithoutASelectionEndsInTheStandardHandler) {
  automation.LastReadText = "alt";
  Combo(7, {"2004", "2005"});
  EXPECT_FALSE(Read());
  ExpectFailure(std::string("Fehler in Funktion ReadComboText:") + kInvalidCall);
  EXPECT_EQ(automation.LastReadText, "alt");
}

TEST_F(ReadComboTextTest, WithoutAComboBoxItFailsAndTheOldTextStays) {
  automation.LastReadText = "alt";
  EXPECT_FALSE(Read());
  ExpectFailure(kTextNotRead);
  EXPECT_EQ(automation.LastReadText, "alt");
}

TEST_F(ReadComboTextTest, TheClassHasNoDefault) {
  Combo(7, {"a"});
  EXPECT_FALSE(Read("7", ""));
  ExpectFailure(kTextNotRead);
}

TEST_F(ReadComboTextTest, AnIdThatIsNoNumberFindsNoWindow) {
  Combo(7, {"a"});
  EXPECT_FALSE(Read("x"));
  ExpectFailure(kTextNotRead);
}

TEST_F(ReadComboTextTest, AComboBoxThatVanishesReadsAsTheEmptyText) {
  const std::int32_t combo = Combo(7, {"a"});
  At(combo).selection = 0;
  VanishAt(combo, platform::CB_GETLBTEXTLEN);
  EXPECT_TRUE(Read());
  EXPECT_EQ(automation.LastReadText, "");
}

TEST_F(ReadComboTextTest, AnEntryThatVanishesBehindItsLengthEndsInTheStandardHandler) {
  const std::int32_t combo = Combo(7, {"a"});
  At(combo).selection = 0;
  Answer(combo, platform::CB_GETLBTEXT, -1);
  EXPECT_FALSE(Read());
  ExpectFailure(std::string("Fehler in Funktion ReadComboText:") + kInvalidCall);
}

TEST_F(ReadComboTextTest, TheVerbPassesItsFiveArgumentsInOrderAndTheTextIsItsValue) {
  const std::int32_t combo = Combo(7, {"2004", "2005"}, 0, "ThunderRT6ComboBox");
  At(combo).selection = 0;
  EXPECT_TRUE(RunLines({"DIM Jahr", "Jahr=READCOMBOTEXT(7,Expor,0,ThunderRT6ComboBox)", "MSG=Jahr"}));
  ExpectLog(Completed({"Der Text aus der Combobox wurde erfolgreich gelesen. 2004", "MSG: 2004"}));
  EXPECT_FALSE(RunLines({"READCOMBOTEXT=7,Expor,0,ThunderRT6ComboBox,Jahr"}));
  EXPECT_EQ(run.LastError, kTextNotRead);
}

TEST_F(ReadComboTextTest, AFailureStoresTheTextThatWasReadBefore) {
  const std::int32_t combo = Combo(7, {"2004"});
  At(combo).selection = 0;
  EXPECT_FALSE(RunLines(
      {"DIM Jahr", "READCOMBOTEXT=7,Export,1,ComboBox", "Jahr=READCOMBOTEXT(8,Export,1,ComboBox)", "MSG=Jahr"}));
  frmStatus.cmdResume_Click();
  ExpectLog({"Der Text aus der Combobox wurde erfolgreich gelesen. 2004", kTextNotRead, "<Cancel>", "MSG: 2004",
             kCompleted, kStars});
}

}  // namespace
