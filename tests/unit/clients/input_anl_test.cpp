// The dialog of the asset export and "SHOWINPUTANL".
#include "clients/frmInputANL.h"

#include <algorithm>

#include "clients/state.h"
#include "engine/state.h"
#include "forms/simulated/user.h"
#include "platform/files.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;
using forms::simulated::ClickBox;
using forms::simulated::ClickItem;
using forms::simulated::Close;
using forms::simulated::DoubleClick;
using forms::simulated::Press;

using Lines = std::vector<std::string>;
using Marks = std::vector<bool>;

constexpr char kCaption[] = "Program - 0012 / 4711 / 2005 / Asset register";
constexpr char kOptions[] = "C:\\TeRu\\Extern\\Berater-12\\4711\\TDConv.cfg";

class InputAnlTest : public SystemTest {
 protected:
  InputAnlTest() {
    InstallSuite();
    TargetWindow(kCaption);
    Years({"01.01.2001", "01.01.2002", "01.01.2003", "01.01.2004"});
  }

  static void Years(const Lines& begins) {
    clients.Matrix.clear();
    for (const std::string& begin : begins) clients.Matrix.push_back({"Inventar", begin, "31.12." + begin.substr(6)});
  }

  static Marks Shown() {
    Marks marks;
    auto& list = frmInputANL.lstViewJahr;
    for (std::size_t i = 0; i < list.Count(); ++i) {
      marks.push_back(list.Item(i).checked);
      EXPECT_EQ(list.SubItem(i, 3), list.Item(i).checked ? "Ja" : "Nein") << i;
    }
    return marks;
  }

  static Marks Taken() {
    Marks marks;
    for (const MatrixRow& row : clients.Matrix) marks.push_back(row.Checked);
    return marks;
  }

  static std::string SavedOption(const std::string& file = kOptions) {
    return platform::FileExists(file) ? GetFile(file) : "missing";
  }

  void ExpectOption(const std::string& setting, const std::string& saved) {
    SCOPED_TRACE(setting);
    Years({"01.01.2001"});
    PutFile("C:\\TeRu\\Import\\anl\\kanzrewe.cfg", "[Vorlage]\r\nGWGinAuswertungen=" + setting + "\r\n");
    User([] {
      ClickBox(frmInputANL.lstViewJahr, 0);
      Press(frmInputANL.cmdOK);
    });
    EXPECT_TRUE(ShowInputANL(""));
    EXPECT_EQ(SavedOption(), "[ANL]\r\nOptionen GWGinAuswertungen=" + saved + "\r\n");
  }

  // What the dialog asks over a window with this caption.
  std::string Question(const std::string& caption, const std::string& text) {
    TargetWindow(caption);
    std::string shown;
    User([&] {
      shown = frmInputANL.lblInfo.Caption();
      Press(frmInputANL.cmdCancel);
    });
    EXPECT_TRUE(ShowInputANL(text));
    return shown;
  }

  void ExpectConsultant(const std::string& caption, const std::string& consultant) {
    Question(caption, "");
    const Lines log = Log();
    EXPECT_NE(std::find(log.begin(), log.end(), "WindowCaption: " + caption), log.end()) << caption;
    EXPECT_NE(std::find(log.begin(), log.end(), "Berater: " + consultant), log.end()) << caption;
  }
};

TEST_F(InputAnlTest, WordsPictureAndColumns) {
  User([] {
    EXPECT_EQ(At(frmInputANL.Window()).text, "TARVEN Datenexport");
    EXPECT_TRUE(At(frmInputANL.Window()).topMost);
    EXPECT_TRUE(frmInputANL.style.resizable);
    EXPECT_EQ(frmInputANL.imgQuest.Icon(), "ICOQST");
    EXPECT_EQ(frmInputANL.Label1.Caption(), "GWG in Auswertungen:");
    EXPECT_EQ(frmInputANL.cmdOK.Caption(), "OK");
    EXPECT_EQ(frmInputANL.cmdCancel.Caption(), "Abbrechen");
    EXPECT_EQ(frmInputANL.lstViewJahr.columns, (Lines{"", "Beginn", "Ende", "Übernehmen"}));
    EXPECT_EQ(frmInputANL.cboGWG.Items(), (Lines{"Zugang, Abschreibung und Abgang", "Zugang und Abschreibung"}));
    EXPECT_EQ(frmInputANL.InputState(), 0);
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, TheMarksOfTheMatrixArriveInTheList) {
  clients.Matrix[2].Checked = true;
  User([] {
    const forms::ListItem& item = frmInputANL.lstViewJahr.Item(2);
    EXPECT_EQ(item.key, "Item01.01.2003");
    EXPECT_EQ(item.text, "");
    EXPECT_EQ(item.subItems, (Lines{"01.01.2003", "31.12.2003", "Ja"}));
    EXPECT_EQ(Shown(), (Marks{false, false, true, false}));
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, ClientAndYearOfTheCaptionStandInTheQuestionWithoutBlanks) {
  EXPECT_EQ(Question(kCaption, "Mandant %1, Jahr %2, %1?"), "Mandant 4711, Jahr 2005, 4711?");
}

TEST_F(InputAnlTest, TheConsultantIsLoggedWithoutLeadingZeros) { ExpectConsultant(kCaption, "12"); }

TEST_F(InputAnlTest, AConsultantOfZerosIsEmpty) {
  ExpectConsultant("Program - 0000 / 4711 / 2005 / Asset register", "");
}

TEST_F(InputAnlTest, TheConsultantStandsBetweenTheFirstHyphenAndTheThirdSlashFromTheEnd) {
  ExpectConsultant("A-B - 12/4711/2005/x", "B - 12");
  ExpectConsultant("TeRu - 12/4711/2005/3/x", "12/4711");
  ExpectConsultant("TeRu -/4711/2005/x", "");
  ExpectConsultant("TeRu - 0012 / 4711 / 2005 / a-b", "12");
}

TEST_F(InputAnlTest, WithoutAHyphenTheConsultantBeginsTheCaption) { ExpectConsultant("TeRu /4711/2005/x", "TeRu"); }

TEST_F(InputAnlTest, ACaptionWithoutRoomForTheConsultantFailsTheRun) {
  // The only hyphen stands behind the slashes; two slashes, since a backslash of the caption splits, too.
  for (const char* caption : {"TeRu/4711/2005/a-b", "TeRu - 12/47\\11/x"}) {
    run.LastError.clear();
    TargetWindow(caption);
    EXPECT_FALSE(ShowInputANL("")) << caption;
    EXPECT_EQ(run.LastError, "Fehler in Funktion ShowInputANL:Ungültiger Prozeduraufruf oder ungültiges Argument");
    EXPECT_FALSE(frmInputANL.Loaded());
  }
}

TEST_F(InputAnlTest, WithoutAClientTheTextStaysAndTheOptionsGoToAFolderWithoutNumbers) {
  TargetWindow("Andere Anwendung");
  User([] {
    EXPECT_EQ(frmInputANL.lblInfo.Caption(), "Mandant %1, Jahr %2?");
    ClickBox(frmInputANL.lstViewJahr, 0);
    Press(frmInputANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputANL("Mandant %1, Jahr %2?"));
  EXPECT_EQ(SavedOption("C:\\TeRu\\Extern\\Berater-\\TDConv.cfg"), "[ANL]\r\nOptionen GWGinAuswertungen=0\r\n");
  ExpectLog(kDiscovery + kDiscovery +
            Lines{"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\Berater-\\", "ShowInputANL"});
}

TEST_F(InputAnlTest, ACaptionWithoutAYearNamesNoClientEither) {
  EXPECT_EQ(Question("TeRu - 12/4711/Anlagen", "Mandant %1, Jahr %2?"), "Mandant %1, Jahr %2?");
  ExpectLog(kDiscovery + Lines{"ShowInputANL"});
}

TEST_F(InputAnlTest, NumbersOfAnEarlierDialogAreForgotten) {
  Question(kCaption, "");
  TargetWindow("Andere Anwendung");
  User([] {
    ClickBox(frmInputANL.lstViewJahr, 0);
    Press(frmInputANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputANL(""));
  EXPECT_EQ(SavedOption(), "missing");
}

TEST_F(InputAnlTest, CheckingAYearTakesAllLaterOnesAndUncheckingDropsThem) {
  User([] {
    auto& list = frmInputANL.lstViewJahr;
    EXPECT_EQ(Shown(), (Marks{false, false, false, false}));
    ClickBox(list, 1);
    EXPECT_EQ(Shown(), (Marks{false, true, true, true}));
    EXPECT_EQ(list.Selected(), 1u);
    ClickBox(list, 2);
    EXPECT_EQ(Shown(), (Marks{false, true, false, false}));
    EXPECT_EQ(list.Selected(), 2u);
    EXPECT_EQ(forms::simulated::BroughtIntoView(), 2u);
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, CheckingAnEarlierYearFillsTheRangeAndLeavesTheYearsInFront) {
  clients.Matrix[2].Checked = true;
  User([] {
    ClickBox(frmInputANL.lstViewJahr, 1);
    EXPECT_EQ(Shown(), (Marks{false, true, true, true}));
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, CheckingALaterYearDropsTheEarlierOnes) {
  clients.Matrix[0].Checked = clients.Matrix[1].Checked = true;
  User([] {
    ClickBox(frmInputANL.lstViewJahr, 3);
    EXPECT_EQ(Shown(), (Marks{false, false, false, true}));
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, YearsAreComparedAsTexts) {
  // As texts 01.01.2005 < 01.07.2003 < 01.07.2004.
  Years({"01.07.2003", "01.07.2004", "01.01.2005"});
  User([] {
    auto& list = frmInputANL.lstViewJahr;
    ClickBox(list, 2);
    EXPECT_EQ(Shown(), (Marks{true, true, true}));
    ClickBox(list, 0);
    EXPECT_EQ(Shown(), (Marks{false, false, true}));
    ClickBox(list, 1);
    EXPECT_EQ(Shown(), (Marks{false, true, false}));
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, ADoubleClickFlipsTheYearAndThoseThatFollowIt) {
  User([] {
    auto& list = frmInputANL.lstViewJahr;
    DoubleClick(list, 2);
    EXPECT_EQ(Shown(), (Marks{false, false, true, true}));
    DoubleClick(list, 3);
    EXPECT_EQ(Shown(), (Marks{false, false, true, false}));
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, ADoubleClickFlipsTheItemTouchedLast) {
  User([] {
    auto& list = frmInputANL.lstViewJahr;
    frmInputANL.lstViewJahr_DblClick();  // none has been touched
    EXPECT_EQ(Shown(), (Marks{false, false, false, false}));
    ClickItem(list, 0);
    ClickBox(list, 3);
    frmInputANL.lstViewJahr_DblClick();
    EXPECT_EQ(Shown(), (Marks{false, false, false, false}));
    ClickItem(list, 1);
    frmInputANL.lstViewJahr_DblClick();
    EXPECT_EQ(Shown(), (Marks{false, true, true, true}));
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, TheItemTouchedLastIsForgottenWithTheDialog) {
  User([] {
    ClickItem(frmInputANL.lstViewJahr, 1);
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
  User([] {
    frmInputANL.lstViewJahr_DblClick();
    EXPECT_EQ(Shown(), (Marks{false, false, false, false}));
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, ConfirmationGoesIntoTheMatrixAndTheOptionsFile) {
  clients.InputState = 4;
  User([] {
    ClickBox(frmInputANL.lstViewJahr, 2);
    forms::simulated::Choose(frmInputANL.cboGWG, "Zugang und Abschreibung");
    Press(frmInputANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputANL("Jahre?"));
  EXPECT_EQ(frmInputANL.InputState(), 8);
  EXPECT_EQ(clients.InputState, 4);
  EXPECT_FALSE(run.StopRun);
  EXPECT_FALSE(frmInputANL.Loaded());
  EXPECT_EQ(Taken(), (Marks{false, false, true, true}));
  EXPECT_EQ(SavedOption(), "[ANL]\r\nOptionen GWGinAuswertungen=1\r\n");
  ExpectLog(Lines{std::string("WindowCaption: ") + kCaption, "Berater: 12"} + kDiscovery + kDiscovery +
            Lines{"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\Berater-12\\4711\\", "ShowInputANL"});
}

TEST_F(InputAnlTest, ConfirmationClearsMarksThatTheUserHasCleared) {
  clients.Matrix[0].Checked = clients.Matrix[3].Checked = true;
  User([] {
    ClickBox(frmInputANL.lstViewJahr, 3);
    Press(frmInputANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputANL(""));
  EXPECT_EQ(Taken(), (Marks{true, false, false, false}));
}

TEST_F(InputAnlTest, TheStoredTreatmentIsShown) {
  ExpectOption("1", "1");
  ExpectOption("0", "0");
  ExpectOption("", "-1");
}

TEST_F(InputAnlTest, AStoredTreatmentThatIsNoneChoosesNone) {
  for (const char* setting : {"2", "-1", "32768", "Zugang"}) ExpectOption(setting, "-1");
}

TEST_F(InputAnlTest, WithoutAStoredTreatmentTheFirstIsShown) {
  User([] {
    EXPECT_EQ(frmInputANL.cboGWG.ListIndex(), 0);
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, OnlyTheFirstActivationFillsTheTreatments) {
  User([] {
    forms::simulated::Choose(frmInputANL.cboGWG, "Zugang und Abschreibung");
    frmInputANL.Form_Activate();
    EXPECT_EQ(frmInputANL.cboGWG.Items().size(), 2u);
    EXPECT_EQ(frmInputANL.cboGWG.ListIndex(), 1);
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
}

TEST_F(InputAnlTest, ADialogThatIsClosedWhileTheSuiteIsLookedForStaysClosed) {
  // The question for the suite's directory comes up with the dialog, whose buttons work meanwhile.
  Registry()["Software\\TARVEN\\Setup\\Destinations"].erase("Teru");
  bool pressed = false;
  WhileMessageBox([&](const ShownBox&) {
    if (!pressed) frmInputANL.cmdCancel_Click();
    pressed = true;
  });
  User([] {});
  EXPECT_TRUE(ShowInputANL(""));
  EXPECT_TRUE(pressed);
  EXPECT_EQ(frmInputANL.InputState(), -1);
  EXPECT_TRUE(run.StopRun);
  EXPECT_FALSE(frmInputANL.Loaded());
}

TEST_F(InputAnlTest, WithoutAYearTheDialogStaysOpen) {
  clients.Matrix[1].Checked = true;
  User([] {
    ClickBox(frmInputANL.lstViewJahr, 1);
    Press(frmInputANL.cmdOK);
    ASSERT_EQ(MessageBoxes().size(), 1u);
    EXPECT_EQ(MessageBoxes()[0].text, "Bitte wählen Sie ein Wirtschaftsjahr aus!");
    EXPECT_EQ(MessageBoxes()[0].caption, "TARVEN Datenexport");
    EXPECT_EQ(MessageBoxes()[0].type, 64u);
    EXPECT_TRUE(frmInputANL.Visible());
    EXPECT_EQ(frmInputANL.InputState(), 0);
    EXPECT_EQ(Taken(), (Marks{false, false, false, false}));
    EXPECT_EQ(SavedOption(), "missing");
    ClickBox(frmInputANL.lstViewJahr, 3);
    Press(frmInputANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputANL(""));
  EXPECT_EQ(frmInputANL.InputState(), 8);
  EXPECT_EQ(Taken(), (Marks{false, false, false, true}));
}

TEST_F(InputAnlTest, CancelLeavesTheMatrixAndStopsTheRun) {
  clients.Matrix[3].Checked = true;
  User([] {
    ClickBox(frmInputANL.lstViewJahr, 0);
    Press(frmInputANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputANL(""));
  EXPECT_EQ(frmInputANL.InputState(), -1);
  EXPECT_TRUE(run.StopRun);
  EXPECT_EQ(Taken(), (Marks{false, false, false, true}));
  EXPECT_EQ(SavedOption(), "missing");
}

TEST_F(InputAnlTest, ClosingItBySystemMenuIsACancel) {
  User([] { Close(frmInputANL); });
  EXPECT_TRUE(ShowInputANL(""));
  EXPECT_EQ(frmInputANL.InputState(), -1);
  EXPECT_TRUE(run.StopRun);
}

TEST_F(InputAnlTest, WithoutAMatrixTheRunFailsAndTheDialogDoesNotOpen) {
  clients.Matrix.clear();
  EXPECT_FALSE(RunLines({"SHOWINPUTANL=Jahre?"}));
  EXPECT_EQ(run.LastError, "Fehler in Funktion ShowInputANL:Index außerhalb des gültigen Bereichs");
  EXPECT_FALSE(frmInputANL.Loaded());
}

TEST_F(InputAnlTest, FilesThatCannotBeWrittenLoseTheSettingWithoutAMessage) {
  Fail("MakeSureDirectoryPathExists");
  Fail("WritePrivateProfileStringA");
  User([] {
    ClickBox(frmInputANL.lstViewJahr, 0);
    Press(frmInputANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputANL(""));
  EXPECT_EQ(frmInputANL.InputState(), 8);
  EXPECT_TRUE(MessageBoxes().empty());
  EXPECT_EQ(SavedOption(), "missing");
}

TEST_F(InputAnlTest, AMatrixThatANestedRunHasShortenedTakesWhatItHasRoomFor) {
  User([] {
    ClickBox(frmInputANL.lstViewJahr, 0);
    clients.Matrix.resize(2);
    Press(frmInputANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputANL(""));
  EXPECT_EQ(Taken(), (Marks{true, true}));
}

TEST_F(InputAnlTest, TheVerbRunsOnBehindTheConfirmation) {
  User([] {
    ClickBox(frmInputANL.lstViewJahr, 0);
    Press(frmInputANL.cmdOK);
  });
  EXPECT_TRUE(RunLines({"SHOWINPUTANL=Jahre von %1?", "IF MATRIX.CHECKED", "MSG=weiter", "ENDIF"}));
  const Lines log = Log();
  EXPECT_NE(std::find(log.begin(), log.end(), "MSG: weiter"), log.end());
}

}  // namespace
