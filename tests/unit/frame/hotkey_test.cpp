// One press of the hot key: which macro it chooses, what it asks, and the frame that it leaves in the log.
#include "clients/frmInputbox.h"
#include "clients/state.h"
#include "engine/state.h"
#include "forms/simulated/user.h"
#include "frame/frmMain.h"
#include "frame/frmStatus.h"
#include "frame/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/window_lookup.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

// The dialog's lines for the client 4711 and the year 2005.
const Lines kConfirmed = {"Mandant: 4711", "Wirtschaftsjahr: 2005", ""};

class HotkeyTest : public SystemTest {
 protected:
  HotkeyTest() {
    StartProgram();
    for (const char* macro : {"A", "B", "C"}) Macro(macro + std::string(".MAK"), {"MSG=" + std::string(macro)});
  }

  // The lines of a run of one of these macros.
  Lines RunOf(const std::string& macro) { return Header(macro + ".MAK") + Completed({"MSG: " + macro}); }

  // Counts the client dialogs, each confirmed as it comes up.
  void ConfirmClients() {
    forms::simulated::WheneverModal([this](forms::Form& form) {
      if (&form == &frmInputbox) ++dialogs_;
      forms::simulated::Press(frmInputbox.cmdOK);
    });
  }

  void ExpectMacroMissing() {
    ASSERT_EQ(MessageBoxes().size(), 1u);
    EXPECT_EQ(MessageBoxes()[0].text, "Die Steuerungsdatei kann nicht geladen werden. Das Programm wird beendet.");
    EXPECT_EQ(MessageBoxes()[0].caption, "TARVEN Datenexport");
    EXPECT_EQ(MessageBoxes()[0].type, 16u);
  }

  int dialogs_ = 0;
};

TEST_F(HotkeyTest, TheWholeLogOfOnePressByteForByte) {
  Setting("Allgemein", "MandantenDLG", "1");
  MacroEntry(1, "'TeRu - ','QUMAFIBU.MAK'");
  Macro("QUMAFIBU.MAK", {"REM Prüfung", "DIM x", "x=VALUE(Größe)", "MSG=x", "IF GDPDU=0", "MSG=$GDPDUPATH", "ENDIF",
                         "DISPLAYSTATUS=Schritt %1 von 2,'1,5'"});
  TargetWindow("TeRu - 0012/4711/2005/Buchen");
  PressHotKey();

  const std::string stars(80, '*');
  EXPECT_EQ(GetFile("C:\\QUMA\\QUMAEXP.LOG"),
            "\r\n" + stars +
                "\r\n"
                "Tarven Datenexport wurde gestartet...\r\n"
                "Datum:14.03.2006 09:30:00\r\n"
                "MakroFile: QUMAFIBU.MAK\r\n"
                "Mandant: 4711\r\n"
                "Wirtschaftsjahr: 2005\r\n"
                "\r\n"
                "Variable wurde bef\xFCllt: Gr\xF6\xDF"
                "e\r\n"
                "MSG: Gr\xF6\xDF"
                "e\r\n"
                "GetTeRuDestination (2. RegValue): C:\\TeRu\r\n"
                "Ausgabeverzeichnis erstellt: C:\\TeRu\\\r\n"
                "Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\FIBU\\2005\\GDPDU\\\r\n"
                "MSG: C:\\TeRu\\Extern\\4711\\FIBU\\2005\\GDPDU\r\n"
                "Schritt 1,5 von 2\r\n"
                "Die Verarbeitung ist erfolgreich abgeschlossen.\r\n" +
                stars + "\r\n");
}

TEST_F(HotkeyTest, TheWindowInFrontBecomesTheMainWindow) {
  MacroEntry(1, "Ziel,A.MAK");
  TargetWindow("Ziel hinten");
  const std::int32_t front = TargetWindow("Ziel vorn");
  frame.MainWindow = 0;
  PressHotKey();
  EXPECT_EQ(frame.MainWindow, front);
}

TEST_F(HotkeyTest, AFragmentInLowerCaseDoesNotFitACaptionInUpperCase) {
  MacroEntry(1, "teru,A.MAK");
  MacroEntry(2, "TERU,B.MAK");
  TargetWindow("TERU 2006");
  PressHotKey();
  ExpectLog(RunOf("B"));
}

TEST_F(HotkeyTest, TheEarliestKeyWins) {
  MacroEntry(3, "TeRu,C.MAK");
  MacroEntry(2, "eR,B.MAK");
  MacroEntry(10, "TeRu 2006,A.MAK");
  TargetWindow("TeRu 2006");
  PressHotKey();
  ExpectLog(RunOf("B"));
}

TEST_F(HotkeyTest, TheKeysMayHaveGaps) {
  MacroEntry(3, "TeRu,A.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(RunOf("A"));
}

TEST_F(HotkeyTest, AnEmptyValueIsPassedOver) {
  MacroEntry(1, "");
  MacroEntry(2, "TeRu,A.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(RunOf("A"));
}

TEST_F(HotkeyTest, Makro15IsRead) {
  MacroEntry(15, "TeRu,A.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(RunOf("A"));
}

TEST_F(HotkeyTest, Makro16IsNeverRead) {
  MacroEntry(16, "TeRu,A.MAK");
  MacroEntry(0, "TeRu,A.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectMacroMissing();
  EXPECT_EQ(frame.MakroFile, "");
}

TEST_F(HotkeyTest, AnEmptyFragmentFitsEveryCaption) {
  MacroEntry(1, ",A.MAK");
  TargetWindow("irgendwas");
  PressHotKey();
  TargetWindow("");
  PressHotKey();
  ExpectLog(RunOf("A") + RunOf("A"));
}

TEST_F(HotkeyTest, WithoutAnyWindowInFrontAnEmptyFragmentFits) {
  MacroEntry(1, "x,B.MAK");
  MacroEntry(2, ",A.MAK");
  PressHotKey();
  EXPECT_EQ(frame.MainWindow, 0);
  ExpectLog(RunOf("A"));
}

TEST_F(HotkeyTest, SingleQuotesAreRemovedBeforeTheSplitSoThatAFieldCannotHoldAComma) {
  MacroEntry(1, "Te'Ru,'A.MAK,B'.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(RunOf("A"));
}

TEST_F(HotkeyTest, FieldsBehindTheSecondAreIgnored) {
  MacroEntry(1, "TeRu,A.MAK,3,4,5,6,7,8");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(RunOf("A"));
}

TEST_F(HotkeyTest, FieldsKeepTheirBlanks) {
  MacroEntry(1, "TeRu ,A.MAK");
  MacroEntry(2, "TeRu,B.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(RunOf("B"));
}

TEST_F(HotkeyTest, AnEntryWithoutAMacroNamesNoFile) {
  MacroEntry(1, "TeRu");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectMacroMissing();
  EXPECT_TRUE(Log().empty());
}

TEST_F(HotkeyTest, TheFirstPressOverAForeignWindowFindsNoFileAndTheProgramStays) {
  MacroEntry(1, "TeRu,A.MAK");
  TargetWindow("Editor");
  PressHotKey();
  ExpectMacroMissing();
  EXPECT_TRUE(Log().empty());
  EXPECT_FALSE(frmStatus.Loaded());

  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(RunOf("A"));
}

TEST_F(HotkeyTest, ALaterPressOverAForeignWindowRunsTheMacroChosenLastAgainstThatWindow) {
  MacroEntry(1, "TeRu,A.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  const std::int32_t editor = TargetWindow("Editor");
  frame.MainWindow = 0;
  PressHotKey();
  EXPECT_EQ(frame.MainWindow, editor);
  ExpectLog(RunOf("A") + RunOf("A"));
  EXPECT_TRUE(MessageBoxes().empty());
}

TEST_F(HotkeyTest, AMacroFileThatIsGoneIsReported) {
  MacroEntry(1, "TeRu,FEHLT.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectMacroMissing();
  EXPECT_TRUE(Log().empty());
}

TEST_F(HotkeyTest, AFolderIsNoMacroFile) {
  MacroEntry(1, "TeRu,ORDNER");
  PutFile("C:\\QUMA\\ORDNER\\x", "");
  TargetWindow("TeRu");
  PressHotKey();
  ExpectMacroMissing();
}

TEST_F(HotkeyTest, AMacroMayLieInAFolderBelowTheProgram) {
  MacroEntry(1, "TeRu,makros\\X.MAK");
  Macro("makros\\X.MAK", {"MSG=unten"});
  TargetWindow("TeRu");
  PressHotKey();
  ExpectLog(Header("makros\\X.MAK") + Completed({"MSG: unten"}));
}

// The client dialog.

TEST_F(HotkeyTest, WithoutTheSettingTheDialogIsShownForAListedMacro) {
  MacroEntry(1, "TeRu,A.MAK");
  Setting("Makro-Fibu", "Files", "1");
  ConfirmClients();
  TargetWindow("TeRu/4711/2005/x");
  PressHotKey();
  EXPECT_EQ(dialogs_, 1);
  ExpectLog(Header("A.MAK") + kConfirmed + Completed({"MSG: A"}));
}

TEST_F(HotkeyTest, WithMandantenDlg0NoDialogIsShownForAnyMacro) {
  Setting("Allgemein", "MandantenDLG", "0");
  Setting("Makro-Fibu", "Files", "1");
  MacroEntry(1, "TeRu,A.MAK");
  MacroEntry(2, "Fibu,QUMAFIBU.MAK");
  Macro("QUMAFIBU.MAK", {});
  ConfirmClients();
  TargetWindow("TeRu/4711/2005/x");
  PressHotKey();
  TargetWindow("Fibu/4711/2005/x");
  PressHotKey();
  EXPECT_EQ(dialogs_, 0);
  ExpectLog(RunOf("A") + Header("QUMAFIBU.MAK") + Completed({}));
}

TEST_F(HotkeyTest, WithMandantenDlg1NoDialogIsShownForAnUnlistedMacro) {
  Setting("Allgemein", "MandantenDLG", "1");
  Setting("Makro-Fibu", "Files", "2");
  MacroEntry(1, "TeRu,A.MAK");
  MacroEntry(2, "Fibu,B.MAK");
  ConfirmClients();
  TargetWindow("TeRu/4711/2005/x");
  PressHotKey();
  EXPECT_EQ(dialogs_, 0);
  TargetWindow("Fibu/4711/2005/x");
  PressHotKey();
  EXPECT_EQ(dialogs_, 1);
}

TEST_F(HotkeyTest, APressWithoutTheDialogKeepsTheClientThatWasConfirmedLast) {
  MacroEntry(1, "Eins,QUMAFIBU.MAK");
  MacroEntry(2, "Zwei,A.MAK");
  Macro("QUMAFIBU.MAK", {"MSG=1"});
  Macro("A.MAK", {"MSG=2"});
  TargetWindow("Eins/4711/2005/x");
  PressHotKey();
  TargetWindow("Zwei/4712/2006/x");
  PressHotKey();
  EXPECT_EQ(Log().at(Log().size() - 3), "MSG: 2");
  EXPECT_EQ(clients.ContextPath, "\\4711\\2005");
}

TEST_F(HotkeyTest, AnyValueOtherThan1ShowsNoDialog) {
  MacroEntry(1, "TeRu,A.MAK");
  Setting("Makro-Fibu", "Files", "1");
  ConfirmClients();
  for (const char* value : {"2", "True", "01", ""}) {
    Setting("Allgemein", "MandantenDLG", value);
    TargetWindow("TeRu/4711/2005/x");
    PressHotKey();
    EXPECT_EQ(dialogs_, 0) << value;
  }
  Setting("Allgemein", "MandantenDLG", "1");
  TargetWindow("TeRu/4711/2005/x");
  PressHotKey();
  EXPECT_EQ(dialogs_, 1);
}

TEST_F(HotkeyTest, TheThreeFixedNamesShowTheDialogWhateverFilesSays) {
  Setting("Makro-Fibu", "Files", "15");
  ConfirmClients();
  int expected = 0;
  for (const std::string macro : {"QUMAFIBU.MAK", "QUMAFIBUCOMP.MAK", "QUMABILANZ.MAK"}) {
    MacroEntry(1, "TeRu," + macro);
    Macro(macro, {});
    TargetWindow("TeRu/4711/2005/x");
    PressHotKey();
    EXPECT_EQ(frame.MakroFile, macro);
    EXPECT_EQ(dialogs_, ++expected) << macro;
  }
}

TEST_F(HotkeyTest, AFixedNameInOtherLettersIsNone) {
  MacroEntry(1, "TeRu,qumafibu.mak");
  Macro("QUMAFIBU.MAK", {});
  ConfirmClients();
  TargetWindow("TeRu/4711/2005/x");
  PressHotKey();
  EXPECT_EQ(dialogs_, 0);
  ExpectLog(Header("qumafibu.mak") + Completed({}));
}

TEST_F(HotkeyTest, AnElementOfFilesThatIsNoNumberCountsEveryEntryAsListed) {
  Setting("Makro-Fibu", "Files", "2,x");
  MacroEntry(1, "Eins,A.MAK");
  MacroEntry(2, "Zwei,B.MAK");
  MacroEntry(3, "Drei,C.MAK");
  ConfirmClients();
  int expected = 0;
  for (const char* caption : {"Zwei", "Eins", "Drei"}) {
    TargetWindow(caption);
    PressHotKey();
    EXPECT_EQ(dialogs_, ++expected) << caption;
  }
}

TEST_F(HotkeyTest, AnEmptyElementOfFilesIsNoNumberEither) {
  Setting("Makro-Fibu", "Files", "2,");
  MacroEntry(1, "Eins,A.MAK");
  ConfirmClients();
  TargetWindow("Eins");
  PressHotKey();
  EXPECT_EQ(dialogs_, 1);
}

TEST_F(HotkeyTest, ANumberOfNoEntryListsNothingHoweverLargeItIs) {
  MacroEntry(1, "Eins,A.MAK");
  ConfirmClients();
  for (const char* files : {"16", "-1", "40000", "99999999999"}) {
    Setting("Makro-Fibu", "Files", files);
    TargetWindow("Eins");
    PressHotKey();
    EXPECT_EQ(dialogs_, 0) << files;
  }
}

TEST_F(HotkeyTest, AnEmptyListOfFilesListsNothing) {
  Setting("Makro-Fibu", "Files", "");
  MacroEntry(1, "Eins,A.MAK");
  ConfirmClients();
  TargetWindow("Eins");
  PressHotKey();
  EXPECT_EQ(dialogs_, 0);
}

TEST_F(HotkeyTest, ElementsOfFilesMayHaveBlanksAround) {
  Setting("Makro-Fibu", "Files", "3, 1 ");
  MacroEntry(1, "Eins,A.MAK");
  MacroEntry(2, "Zwei,B.MAK");
  ConfirmClients();
  TargetWindow("Eins");
  PressHotKey();
  EXPECT_EQ(dialogs_, 1);
  TargetWindow("Zwei");
  PressHotKey();
  EXPECT_EQ(dialogs_, 1);
}

TEST_F(HotkeyTest, OverAForeignWindowTheRememberedNumberIs0) {
  Setting("Makro-Fibu", "Files", "1");
  MacroEntry(1, "Eins,A.MAK");
  ConfirmClients();
  TargetWindow("Eins");
  PressHotKey();
  EXPECT_EQ(dialogs_, 1);
  TargetWindow("Editor");
  PressHotKey();
  EXPECT_EQ(dialogs_, 1);
  Setting("Makro-Fibu", "Files", "0");
  PressHotKey();
  EXPECT_EQ(dialogs_, 2);
}

TEST_F(HotkeyTest, OverAForeignWindowAFixedNameStillShowsTheDialog) {
  MacroEntry(1, "Eins,QUMAFIBU.MAK");
  Macro("QUMAFIBU.MAK", {});
  ConfirmClients();
  TargetWindow("Eins");
  PressHotKey();
  TargetWindow("Editor");
  PressHotKey();
  EXPECT_EQ(dialogs_, 2);
}

TEST_F(HotkeyTest, TheHeaderIsWrittenBeforeTheDialogIsShown) {
  MacroEntry(1, "Eins,QUMAFIBU.MAK");
  Macro("QUMAFIBU.MAK", {});
  Lines seen;
  forms::simulated::WhenModal([&](forms::Form&) {
    seen = Log();
    EXPECT_FALSE(frmStatus.Visible());
    forms::simulated::Press(frmInputbox.cmdOK);
  });
  TargetWindow("Eins");
  PressHotKey();
  EXPECT_EQ(seen, Header("QUMAFIBU.MAK"));
}

class CancelTest : public HotkeyTest {
 protected:
  CancelTest() {
    MacroEntry(1, "Eins,QUMAFIBU.MAK");
    Macro("QUMAFIBU.MAK", {"MSG=nie"});
    TargetWindow("Eins/4711/2005/x");
  }

  void ExpectNoRun() {
    ExpectLog(Header("QUMAFIBU.MAK"));
    EXPECT_EQ(clients.ContextPath, "");
    EXPECT_FALSE(frmInputbox.Result());
    EXPECT_FALSE(frmStatus.Visible());
    EXPECT_EQ(ShownIcon(), kIdle);
  }
};

TEST_F(CancelTest, TheButtonLeavesAHeaderWithNoRunBehindIt) {
  forms::simulated::WhenModal([](forms::Form&) { forms::simulated::Press(frmInputbox.cmdCancel); });
  PressHotKey();
  ExpectNoRun();
}

TEST_F(CancelTest, TheSystemMenuDoesTheSame) {
  forms::simulated::WhenModal([](forms::Form& form) { forms::simulated::Close(form); });
  PressHotKey();
  ExpectNoRun();
}

TEST_F(CancelTest, TheSystemMenuDoesTheSameBehindAConfirmedPress) {
  PressHotKey();
  EXPECT_EQ(clients.ContextPath, "\\4711\\2005");
  PutFile(kProgram + "\\QUMAEXP.LOG", "");
  frmStatus.Unload();
  forms::simulated::WhenModal([](forms::Form& form) { forms::simulated::Close(form); });
  PressHotKey();
  ExpectNoRun();
}

TEST_F(CancelTest, EscapePressesTheCancelButtonAndEnterTheOther) {
  EXPECT_EQ(frmInputbox.cmdCancel.role, forms::ButtonRole::Cancel);
  EXPECT_EQ(frmInputbox.cmdOK.role, forms::ButtonRole::Default);
}

TEST_F(CancelTest, TheNextPressAsksAgain) {
  forms::simulated::WhenModal([](forms::Form&) { forms::simulated::Press(frmInputbox.cmdCancel); });
  PressHotKey();
  PressHotKey();
  ExpectLog(Header("QUMAFIBU.MAK") + Header("QUMAFIBU.MAK") + kConfirmed + Completed({"MSG: nie"}));
}

// "%MerlaVersion%".

TEST_F(HotkeyTest, MerlaVersionIsReplacedInTheMacroName) {
  Setting("MERLA", "Version", "280");
  MacroEntry(1, "MERLA,QUMA%MerlaVersion%.MAK");
  Macro("QUMA280.MAK", {"MSG=neu"});
  TargetWindow("MERLA");
  PressHotKey();
  ExpectLog(Lines{"ReadINI=280"} + Header("QUMA280.MAK") + Completed({"MSG: neu"}));
}

TEST_F(HotkeyTest, EveryMerlaVersionInTheNameIsReplaced) {
  Setting("MERLA", "Version", "2100");
  MacroEntry(1, "MERLA,%MerlaVersion%\\Q%MerlaVersion%.MAK");
  Macro("2100\\Q2100.MAK", {});
  TargetWindow("MERLA");
  PressHotKey();
  ExpectLog(Lines{"ReadINI=2100"} + Header("2100\\Q2100.MAK") + Completed({}));
}

TEST_F(HotkeyTest, TheStoredNameNoLongerHoldsThePlaceholder) {
  Setting("MERLA", "Version", "280");
  MacroEntry(1, "MERLA,QUMA%MerlaVersion%.MAK");
  Macro("QUMA280.MAK", {});
  TargetWindow("MERLA");
  PressHotKey();
  EXPECT_EQ(frame.MakroFile, "QUMA280.MAK");

  Setting("MERLA", "Version", "260");
  TargetWindow("Editor");
  PressHotKey();
  ExpectLog(Lines{"ReadINI=280"} + Header("QUMA280.MAK") + Completed({}) + Header("QUMA280.MAK") + Completed({}));
}

TEST_F(HotkeyTest, WithoutAMerlaVersionThePlaceholderVanishes) {
  MacroEntry(1, "MERLA,QUMA%MerlaVersion%.MAK");
  Macro("QUMA.MAK", {});
  TargetWindow("MERLA");
  PressHotKey();
  ExpectLog(Lines{"ReadINI="} + Header("QUMA.MAK") + Completed({}));
}

TEST_F(HotkeyTest, ThePlaceholderInOtherLettersIsNone) {
  Setting("MERLA", "Version", "280");
  MacroEntry(1, "MERLA,QUMA%MERLAVERSION%.MAK");
  Macro("QUMA280.MAK", {});
  TargetWindow("MERLA");
  PressHotKey();
  ExpectMacroMissing();
  EXPECT_TRUE(Log().empty());
}

TEST_F(HotkeyTest, AMissingMacroOfAVersionLeavesTheReadValueInTheLog) {
  Setting("MERLA", "Version", "999");
  MacroEntry(1, "MERLA,QUMA%MerlaVersion%.MAK");
  TargetWindow("MERLA");
  PressHotKey();
  ExpectMacroMissing();
  ExpectLog(Lines{"ReadINI=999"});
}

TEST_F(HotkeyTest, AListedMacroStaysListedWhenItsPlaceholderIsReplaced) {
  Setting("MERLA", "Version", "280");
  Setting("Makro-Fibu", "Files", "1");
  MacroEntry(1, "MERLA,QUMA%MerlaVersion%.MAK");
  Macro("QUMA280.MAK", {});
  ConfirmClients();
  TargetWindow("MERLA");
  PressHotKey();
  EXPECT_EQ(dialogs_, 1);
}

TEST_F(HotkeyTest, AFixedNameMayComeOutOfThePlaceholder) {
  Setting("MERLA", "Version", "FIBU");
  MacroEntry(1, "MERLA,QUMA%MerlaVersion%.MAK");
  Macro("QUMAFIBU.MAK", {});
  ConfirmClients();
  TargetWindow("MERLA");
  PressHotKey();
  EXPECT_EQ(dialogs_, 1);
}

// The run.

TEST_F(HotkeyTest, TheStatusDialogIsShownOnTopOfAllOthers) {
  MacroEntry(1, "TeRu,A.MAK");
  const std::int32_t target = TargetWindow("TeRu");
  PressHotKey();
  EXPECT_TRUE(frmStatus.Visible());
  EXPECT_TRUE(At(frmStatus.Window()).topMost);
  Activate(target);
  EXPECT_EQ(platform::FindWindowA(nullptr, nullptr), frmStatus.Window());
}

TEST_F(HotkeyTest, TheStatusDialogIsOnTheScreenDuringTheRun) {
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"WAIT=100"});
  bool seen = false;
  Schedule(50, [&] { seen = frmStatus.Visible(); });
  TargetWindow("TeRu");
  PressHotKey();
  EXPECT_TRUE(seen);
}

TEST_F(HotkeyTest, EventsRunOnceBeforeTheStatusDialogIsShown) {
  MacroEntry(1, "TeRu,A.MAK");
  std::vector<bool> shown;
  bool topMost = false;
  const std::int32_t ours = AddWindow({.className = "X",
                                       .text = "",
                                       .process = kOwnProcess,
                                       .procedure = [&](const Message&) -> std::optional<std::int32_t> {
                                         shown.push_back(frmStatus.Visible());
                                         topMost = At(frmStatus.Window()).topMost;
                                         return 0;
                                       }});
  TargetWindow("TeRu");
  platform::simulated::PressHotKey(platform::MOD_ALT, platform::VK_F12);
  platform::PostMessageA(ours, 1000, 0, 0);
  forms::Pump();
  EXPECT_EQ(shown, std::vector<bool>{false});
  EXPECT_TRUE(topMost);
  ExpectLog(RunOf("A"));
}

TEST_F(HotkeyTest, AMacroThatCannotBeReadRunsEmpty) {
  MacroEntry(1, "TeRu,A.MAK");
  TargetWindow("TeRu");
  Fail("OpenFile", 1);
  PressHotKey();
  ExpectLog(Header("A.MAK") + Completed({}));
}

TEST_F(HotkeyTest, WithoutTopMostPlaceTheRunGoesOn) {
  MacroEntry(1, "TeRu,A.MAK");
  TargetWindow("TeRu");
  Fail("SetWindowPos");
  PressHotKey();
  ExpectLog(RunOf("A"));
}

TEST_F(HotkeyTest, WithoutAnAnswerToWhichWindowIsInFrontTheRunGoesOn) {
  MacroEntry(1, ",A.MAK");
  TargetWindow("TeRu");
  Fail("GetForegroundWindow");
  PressHotKey();
  EXPECT_EQ(frame.MainWindow, 0);
  ExpectLog(RunOf("A"));
}

TEST_F(HotkeyTest, EachPressReadsTheSettingsAndTheMacroAnew) {
  MacroEntry(1, "TeRu,A.MAK");
  const std::int32_t target = TargetWindow("TeRu");
  PressHotKey();
  MacroEntry(1, "TeRu,B.MAK");
  Activate(target);
  PressHotKey();
  Macro("B.MAK", {"MSG=geändert"});
  Activate(target);
  PressHotKey();
  ExpectLog(RunOf("A") + RunOf("B") + Header("B.MAK") + Completed({"MSG: geändert"}));
}

TEST_F(HotkeyTest, APressOverTheProgramsOwnDialogIsOneOverAForeignWindow) {
  MacroEntry(1, "TeRu,A.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  const std::int32_t dialog = frmStatus.Window();
  ASSERT_EQ(Foreground(), dialog);
  PressHotKey();
  EXPECT_EQ(frame.MainWindow, dialog);
  ExpectLog(RunOf("A") + RunOf("A"));
}

TEST_F(HotkeyTest, TheHeaderTellsTheTimeOfThePress) {
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"WAIT=90000"});
  TargetWindow("TeRu");
  PressHotKey();
  PressHotKey();
  const Lines lines = Log();
  ASSERT_EQ(lines.size(), 14u);
  EXPECT_EQ(lines[3], "Datum:14.03.2006 09:30:00");
  EXPECT_EQ(lines[10], "Datum:14.03.2006 09:31:30");
}

TEST_F(HotkeyTest, AtMidnightTheHeaderTellsTheDayAlone) {
  SetNow({2007, 1, 1, 0, 0, 0});
  MacroEntry(1, "TeRu,A.MAK");
  TargetWindow("TeRu");
  PressHotKey();
  ASSERT_GE(Log().size(), 4u);
  EXPECT_EQ(Log()[3], "Datum:01.01.2007");
}

TEST_F(HotkeyTest, AnyIdentifierOfTheHotKeyMessageStartsARun) {
  MacroEntry(1, "TeRu,A.MAK");
  TargetWindow("TeRu");
  platform::PostMessageA(frmMain.Window(), platform::WM_HOTKEY, 77, 0);
  forms::Pump();
  ExpectLog(RunOf("A"));
}

}  // namespace
