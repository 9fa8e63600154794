// The dialog of the second application's asset export and "SHOWINPUTMERANL".
#include "clients/frmInputMerANL.h"

#include <algorithm>

#include "clients/state.h"
#include "engine/state.h"
#include "forms/simulated/user.h"
#include "platform/files.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;
using forms::simulated::ClickBox;
using forms::simulated::Close;
using forms::simulated::DoubleClick;
using forms::simulated::Press;

using Lines = std::vector<std::string>;
using Marks = std::vector<bool>;

constexpr char kExport[] = "C:\\TeRu\\Extern\\4711\\ANL\\export.cfg";

class InputMerAnlTest : public SystemTest {
 protected:
  InputMerAnlTest() {
    InstallSuite();
    Years({"01.01.2003", "01.01.2004", "01.01.2005"});
  }

  static void Years(const Lines& begins) {
    clients.MerMatrix.clear();
    for (const std::string& begin : begins) {
      MerMatrixRow row;
      row.Beginn = begin;
      row.Ende = "Ende von " + begin;
      row.Waehrung = "EUR";
      clients.MerMatrix.push_back(row);
    }
  }

  static void FirstYear(const std::string& value) {
    PutFile("C:\\TeRu\\Import\\Anl\\merla.cfg", "[Vorlage]\r\nWirtschaftsjahrAb=" + value + "\r\n");
  }

  static Marks Shown() {
    Marks marks;
    auto& list = frmInputMerANL.lstViewJahr;
    for (std::size_t i = 0; i < list.Count(); ++i) {
      marks.push_back(list.Item(i).checked);
      EXPECT_EQ(list.SubItem(i, 3), list.Item(i).checked ? "Ja" : "Nein") << i;
    }
    return marks;
  }

  static Marks Taken() {
    Marks marks;
    for (const MerMatrixRow& row : clients.MerMatrix) marks.push_back(row.Checked);
    return marks;
  }

  // The marks with which the dialog comes up.
  Marks Preset(const Lines& begins, const std::string& firstYear) {
    Years(begins);
    FirstYear(firstYear);
    Marks marks;
    User([&] {
      marks = Shown();
      Press(frmInputMerANL.cmdCancel);
    });
    EXPECT_TRUE(ShowInputMerANL("", "4711"));
    EXPECT_EQ(Taken(), Marks(begins.size(), false));  // the rows are touched by a confirmation alone
    return marks;
  }
};

TEST_F(InputMerAnlTest, WordsPictureAndColumns) {
  TargetWindow("Program - 0012 / 4712 / 2005 / x");
  User([] {
    EXPECT_EQ(At(frmInputMerANL.Window()).text, "TARVEN Datenexport");
    EXPECT_TRUE(At(frmInputMerANL.Window()).topMost);
    EXPECT_TRUE(frmInputMerANL.style.resizable);
    EXPECT_EQ(frmInputMerANL.imgQuest.Icon(), "ICOQST");
    EXPECT_EQ(frmInputMerANL.lblInfo.Caption(), "Jahre von 4711, %2, 4711?");
    EXPECT_EQ(frmInputMerANL.cmdOK.Caption(), "OK");
    EXPECT_EQ(frmInputMerANL.cmdCancel.Caption(), "Abbrechen");
    EXPECT_EQ(frmInputMerANL.lstViewJahr.columns, (Lines{"", "Beginn", "Ende", "Übernehmen"}));
    EXPECT_EQ(frmInputMerANL.lstViewJahr.Item(1).subItems, (Lines{"01.01.2004", "Ende von 01.01.2004", "Nein"}));
    EXPECT_EQ(frmInputMerANL.InputState(), 0);
    Press(frmInputMerANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputMerANL("Jahre von %1, %2, %1?", "4711"));
  ExpectLog(kDiscovery + Lines{"ShowInputMerANL"});
}

TEST_F(InputMerAnlTest, TheListFollowsTheUserAsOneRange) {
  User([] {
    auto& list = frmInputMerANL.lstViewJahr;
    ClickBox(list, 1);
    EXPECT_EQ(Shown(), (Marks{false, true, true}));
    DoubleClick(list, 2);
    EXPECT_EQ(Shown(), (Marks{false, true, false}));
    Press(frmInputMerANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputMerANL("", "4711"));
}

TEST_F(InputMerAnlTest, YearsInAscendingOrderAreCheckedFromTheConfiguredOneOn) {
  EXPECT_EQ(Preset({"01.01.2003", "01.01.2004", "01.01.2005", "01.01.2006"}, "2004"), (Marks{false, true, true, true}));
}

TEST_F(InputMerAnlTest, YearsInDescendingOrderAllPassBehindTheFirstHit) {
  EXPECT_EQ(Preset({"01.01.2005", "01.01.2004", "01.01.2003", "01.01.2002"}, "2004"), (Marks{true, true, true, true}));
}

TEST_F(InputMerAnlTest, BehindAHitLateInAMonthNoneIsChecked) {
  // "31.12.2004" sorts above every year.
  EXPECT_EQ(Preset({"31.12.2004", "01.01.2005", "01.01.2006"}, "2004"), (Marks{true, false, false}));
  EXPECT_EQ(Preset({"01.01.2003", "31.12.2004", "01.01.2005"}, "2004"), (Marks{false, true, false}));
}

TEST_F(InputMerAnlTest, WithoutAFirstYearNoneIsChecked) {
  EXPECT_EQ(Preset({"01.01.2003", "01.01.2004"}, ""), (Marks{false, false}));
}

TEST_F(InputMerAnlTest, AFirstYearBehindAllChecksNone) {
  EXPECT_EQ(Preset({"01.01.2003", "01.01.2004"}, "2005"), (Marks{false, false}));
}

TEST_F(InputMerAnlTest, AFirstDayThatIsNoDateIsComparedAsItStands) {
  EXPECT_EQ(Preset({"x", "", "99999"}, "2004"), (Marks{true, false, false}));
}

TEST_F(InputMerAnlTest, MarksOfTheMatrixArriveBesideThePreset) {
  clients.MerMatrix[0].Checked = true;
  FirstYear("2005");
  User([] {
    EXPECT_EQ(Shown(), (Marks{true, false, true}));
    Press(frmInputMerANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputMerANL("", "4711"));
  EXPECT_EQ(Taken(), (Marks{true, false, false}));
}

TEST_F(InputMerAnlTest, ConfirmationWritesTheConfigurationAndMakesTheFolders) {
  Years({"31.12.2001", "01.01.2003", "01.01.2000"});
  clients.MerMatrix[0].Steuerrecht = clients.MerMatrix[0].Handelsrecht = true;
  clients.MerMatrix[2].Kalkulation = clients.MerMatrix[2].IASIFRS = true;
  clients.MerMatrix[2].Waehrung = "DM";
  clients.MerMatrix[1].Pfad = "alt";
  clients.MerMatrix[0].Checked = clients.MerMatrix[2].Checked = true;
  User([] { Press(frmInputMerANL.cmdOK); });
  EXPECT_TRUE(ShowInputMerANL("", "4711"));
  EXPECT_EQ(frmInputMerANL.InputState(), 8);
  EXPECT_EQ(clients.InputState, 0);
  EXPECT_FALSE(run.StopRun);
  EXPECT_EQ(LinesOf(kExport),
            (Lines{"[Mandantendaten]", "Nummer=4711", "1WJ Waehrung=EUR", "1WJ Beginn=31.12.2001",
                   "1WJ Ende=Ende von 31.12.2001", "1WJ Steuerrecht=1", "1WJ Kalkulation=0", "1WJ Handelsrecht=1",
                   "1WJ IAS/IFRS=0", "2WJ Waehrung=DM", "2WJ Beginn=01.01.2000", "2WJ Ende=Ende von 01.01.2000",
                   "2WJ Steuerrecht=0", "2WJ Kalkulation=1", "2WJ Handelsrecht=0", "2WJ IAS/IFRS=1"}));
  EXPECT_EQ(clients.MerMatrix[0].Pfad, "C:\\TeRu\\Extern\\4711\\ANL\\31122001");
  EXPECT_EQ(clients.MerMatrix[1].Pfad, "alt");
  EXPECT_EQ(clients.MerMatrix[2].Pfad, "C:\\TeRu\\Extern\\4711\\ANL\\01012000");
  EXPECT_TRUE(platform::FolderExists("C:\\TeRu\\Extern\\4711\\ANL\\31122001"));
  EXPECT_FALSE(platform::FolderExists("C:\\TeRu\\Extern\\4711\\ANL\\01012003"));
  EXPECT_TRUE(platform::FolderExists("C:\\TeRu\\Extern\\4711\\ANL\\01012000"));
  ExpectLog(kDiscovery + kDiscovery +
            Lines{"Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\ANL\\",
                  "Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\ANL\\31122001\\",
                  "Pfad: C:\\TeRu\\Extern\\4711\\ANL\\31122001",
                  "Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\4711\\ANL\\01012000\\",
                  "Pfad: C:\\TeRu\\Extern\\4711\\ANL\\01012000", "ShowInputMerANL"});
}

TEST_F(InputMerAnlTest, OldKeysOfTheConfigurationStay) {
  PutFile(kExport, "[Mandantendaten]\r\nNummer=1\r\n2WJ Beginn=alt\r\n");
  User([] {
    ClickBox(frmInputMerANL.lstViewJahr, 2);
    Press(frmInputMerANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputMerANL("", "4711"));
  const Lines lines = LinesOf(kExport);
  EXPECT_NE(std::find(lines.begin(), lines.end(), "Nummer=4711"), lines.end());
  EXPECT_NE(std::find(lines.begin(), lines.end(), "2WJ Beginn=alt"), lines.end());
  EXPECT_NE(std::find(lines.begin(), lines.end(), "1WJ Beginn=01.01.2005"), lines.end());
}

TEST_F(InputMerAnlTest, AnEmptyClientIsTakenAsItStands) {
  User([] {
    ClickBox(frmInputMerANL.lstViewJahr, 2);
    Press(frmInputMerANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputMerANL("", ""));
  EXPECT_EQ(clients.MerMatrix[2].Pfad, "C:\\TeRu\\Extern\\\\ANL\\01012005");
}

TEST_F(InputMerAnlTest, AYearThatOccursTwiceMovesTheMarksBehindItByOneRow) {
  Years({"01.01.2003", "01.01.2003", "01.01.2004", "01.01.2005"});
  clients.MerMatrix[3].Checked = true;
  User([] {
    ASSERT_EQ(frmInputMerANL.lstViewJahr.Count(), 3u);
    EXPECT_EQ(Shown(), (Marks{false, false, true}));
    EXPECT_EQ(frmInputMerANL.lstViewJahr.SubItem(1, 1), "01.01.2004");
    Press(frmInputMerANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputMerANL("", "4711"));
  // The last row has no item and keeps what it had.
  EXPECT_EQ(Taken(), (Marks{false, false, true, true}));
  EXPECT_EQ(run.LastError, "");
}

TEST_F(InputMerAnlTest, WithoutAYearTheDialogStaysOpen) {
  User([] {
    Press(frmInputMerANL.cmdOK);
    ASSERT_EQ(MessageBoxes().size(), 1u);
    EXPECT_EQ(MessageBoxes()[0].text, "Bitte wählen Sie ein Wirtschaftsjahr aus!");
    EXPECT_EQ(MessageBoxes()[0].caption, "TARVEN Datenexport");
    EXPECT_EQ(MessageBoxes()[0].type, 64u);
    EXPECT_TRUE(frmInputMerANL.Visible());
    EXPECT_EQ(frmInputMerANL.InputState(), 0);
    EXPECT_FALSE(platform::FileExists(kExport));
    Press(frmInputMerANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputMerANL("", "4711"));
}

TEST_F(InputMerAnlTest, CancelLeavesTheMatrixAndStopsTheRun) {
  User([] {
    ClickBox(frmInputMerANL.lstViewJahr, 0);
    Press(frmInputMerANL.cmdCancel);
  });
  EXPECT_TRUE(ShowInputMerANL("", "4711"));
  EXPECT_EQ(frmInputMerANL.InputState(), -1);
  EXPECT_TRUE(run.StopRun);
  EXPECT_EQ(Taken(), (Marks{false, false, false}));
  EXPECT_EQ(clients.MerMatrix[0].Pfad, "");
}

TEST_F(InputMerAnlTest, ClosingItBySystemMenuIsACancel) {
  User([] { Close(frmInputMerANL); });
  EXPECT_TRUE(ShowInputMerANL("", "4711"));
  EXPECT_TRUE(run.StopRun);
}

TEST_F(InputMerAnlTest, WithoutAMatrixTheRunFailsAndTheDialogDoesNotOpen) {
  clients.MerMatrix.clear();
  EXPECT_FALSE(RunLines({"SHOWINPUTMERANL=Jahre?,4711"}));
  EXPECT_EQ(run.LastError, "Fehler in Funktion ShowInputMerANL:Index außerhalb des gültigen Bereichs");
  EXPECT_FALSE(frmInputMerANL.Loaded());
}

TEST_F(InputMerAnlTest, FoldersAndFilesThatCannotBeMadeArePassedOver) {
  Fail("MakeSureDirectoryPathExists");
  Fail("WritePrivateProfileStringA");
  User([] {
    ClickBox(frmInputMerANL.lstViewJahr, 2);
    Press(frmInputMerANL.cmdOK);
  });
  EXPECT_TRUE(ShowInputMerANL("", "4711"));
  EXPECT_EQ(frmInputMerANL.InputState(), 8);
  EXPECT_EQ(run.LastError, "");
  EXPECT_EQ(clients.MerMatrix[2].Pfad, "C:\\TeRu\\Extern\\4711\\ANL\\01012005");
  EXPECT_TRUE(MessageBoxes().empty());
}

TEST_F(InputMerAnlTest, TheVerbHandsOverTextAndClient) {
  User([] {
    EXPECT_EQ(frmInputMerANL.lblInfo.Caption(), "Jahre von 4711?");
    ClickBox(frmInputMerANL.lstViewJahr, 2);
    Press(frmInputMerANL.cmdOK);
  });
  EXPECT_TRUE(RunLines({"SHOWINPUTMERANL=Jahre von %1?,4711"}));
  EXPECT_EQ(Taken(), (Marks{false, false, true}));
}

}  // namespace
