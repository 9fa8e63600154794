// The dialog of the second application's bookkeeping export and "SHOWINPUTMERFIB".
#include "clients/frmInputMerFib.h"

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
using forms::simulated::Press;
using forms::simulated::Type;

using Lines = std::vector<std::string>;
using Marks = std::vector<bool>;

constexpr char kClients[] = "C:\\Daten\\Liste.txt";
constexpr char kWorkFile[] = "C:\\Temp\\QUMeFib.csv";

class InputMerFibTest : public SystemTest {
 protected:
  InputMerFibTest() {
    platform::simulated::SetEnvironmentVariable("temp", "C:\\Temp");
    PutFile("C:\\Temp\\leer.txt", "");
    ClientFile({"1001;Müller;x;x;x;Januar", "1002;Meier;;;;April;mehr"});
  }

  static void ClientFile(const Lines& clientLines) {
    std::string text = "Kopf\r\nzweite;Zeile\r\n";
    for (const std::string& line : clientLines) text += line + "\r\n";
    PutFile(kClients, text);
  }

  // Shows the dialog to such a user, who cancels it where he has not answered.
  template <class Acts>
  std::string Show(Acts acts) {
    User([acts] {
      acts();
      if (frmInputMerFib.Visible()) Press(frmInputMerFib.cmdCancel);
    });
    return ShowInputMerFib("Mandanten?", kClients);
  }

  static void TypeYears(const std::string& from, const std::string& to) {
    Type(frmInputMerFib.txtFrom, from);
    Type(frmInputMerFib.txtTo, to);
  }

  // What is in the work file when the user has confirmed these years.
  Lines Written(const std::string& from, const std::string& to) {
    Show([&] {
      TypeYears(from, to);
      Press(frmInputMerFib.cmdOK);
    });
    EXPECT_EQ(frmInputMerFib.InputState(), 8);
    return LinesOf(kWorkFile);
  }

  // The user confirms these years; the dialog must refuse them with this message and stay open.
  void ExpectRefused(const std::string& from, const std::string& to, const std::string& message) {
    SCOPED_TRACE(from + " to " + to);
    const std::size_t shown = MessageBoxes().size();
    Show([&] {
      frmInputMerFib.txtFrom.SetText(from);  // as if pasted: what is typed is filtered
      frmInputMerFib.txtTo.SetText(to);
      Press(frmInputMerFib.cmdOK);
      EXPECT_TRUE(frmInputMerFib.Visible());
      EXPECT_EQ(frmInputMerFib.InputState(), 0);
    });
    ASSERT_EQ(MessageBoxes().size(), shown + 1);
    EXPECT_EQ(MessageBoxes().back().text, message);
    EXPECT_EQ(MessageBoxes().back().caption, "TARVEN Datenexport");
    EXPECT_EQ(MessageBoxes().back().type, 64u);
    EXPECT_EQ(clients.MerlaMaxYear, "");
  }

  static Marks Shown() {
    Marks marks;
    for (std::size_t i = 0; i < frmInputMerFib.lstViewMandanten.Count(); ++i)
      marks.push_back(frmInputMerFib.lstViewMandanten.Item(i).checked);
    return marks;
  }

  static void Select(const std::string& from, const std::string& to) {
    frmInputMerFib.txtMandantVon.SetText(from);
    frmInputMerFib.txtMandantBis.SetText(to);
    Press(frmInputMerFib.cmdSelect);
  }

  static std::string Typed(forms::TextBox& field, const std::string& text) {
    Type(field, text);
    return field.Text();
  }

  // The client file is refused with this error; the dialog does not open.
  void ExpectFailure(const std::string& error) {
    run.RunFailed = false;
    run.LastError.clear();
    EXPECT_EQ(ShowInputMerFib("", kClients), "");
    EXPECT_TRUE(run.RunFailed);
    EXPECT_EQ(run.LastError, error);
    EXPECT_FALSE(frmInputMerFib.Loaded());
    EXPECT_TRUE(Log().empty());
  }
};

TEST_F(InputMerFibTest, WordsPictureAndColumns) {
  Show([] {
    EXPECT_EQ(At(frmInputMerFib.Window()).text, "TARVEN Datenexport");
    EXPECT_TRUE(At(frmInputMerFib.Window()).topMost);
    EXPECT_TRUE(frmInputMerFib.style.resizable);
    EXPECT_EQ(frmInputMerFib.imgQuest.Icon(), "ICOQST");
    EXPECT_EQ(frmInputMerFib.lblInfo.Caption(), "Mandanten?");
    EXPECT_EQ(frmInputMerFib.Label3.Caption(), "Mandantendatei:");
    EXPECT_EQ(frmInputMerFib.lblFile.Caption(), kClients);
    EXPECT_EQ(frmInputMerFib.Label1.Caption(), "Wirtschaftsjahr von:");
    EXPECT_EQ(frmInputMerFib.Label2.Caption(), "Wirtschaftsjahr bis:");
    EXPECT_EQ(frmInputMerFib.Label4.Caption(), "Mandant von:");
    EXPECT_EQ(frmInputMerFib.Label5.Caption(), "Mandant bis:");
    EXPECT_EQ(frmInputMerFib.cmdSelect.Caption(), "Auswahl");
    EXPECT_EQ(frmInputMerFib.cmdOK.Caption(), "OK");
    EXPECT_EQ(frmInputMerFib.cmdCancel.Caption(), "Abbrechen");
    EXPECT_EQ(frmInputMerFib.lstViewMandanten.columns, (Lines{"", "Mandant", "Bezeichnung", "WJ-Beginn"}));
    EXPECT_EQ(frmInputMerFib.InputState(), 0);
  });
}

TEST_F(InputMerFibTest, ClientsStandInTheListAndStartChecked) {
  Show([] {
    EXPECT_EQ(Shown(), (Marks{true, true}));
    const forms::ListItem& item = frmInputMerFib.lstViewMandanten.Item(1);
    EXPECT_EQ(item.key, "Item1002");
    EXPECT_EQ(item.text, "");
    EXPECT_EQ(item.subItems, (Lines{"1002", "Meier", "April"}));
  });
}

TEST_F(InputMerFibTest, YearsComeFromTheSettingsWhereTheyAreNumbers) {
  Setting("MERLA", "WirtschaftsjahrAb", "2003");
  Setting("MERLA", "WirtschaftsjahrBis", "zweitausend");
  Show([] {
    EXPECT_EQ(frmInputMerFib.txtFrom.Text(), "2003");
    EXPECT_EQ(frmInputMerFib.txtTo.Text(), "");
  });
  Setting("MERLA", "WirtschaftsjahrAb", "");
  Setting("MERLA", "WirtschaftsjahrBis", "2004");
  Show([] {
    EXPECT_EQ(frmInputMerFib.txtFrom.Text(), "");
    EXPECT_EQ(frmInputMerFib.txtTo.Text(), "2004");
  });
}

TEST_F(InputMerFibTest, ABusinessYearFromJanuaryToDecember) {
  ClientFile({"1001;Müller;;;;Januar"});
  EXPECT_EQ(Written("2003", "2004"), (Lines{"1001;01.01.2003;31.12.2003;", "1001;01.01.2004;31.12.2004;"}));
  ExpectLog({"ShowInputMerFib (8)"});
}

TEST_F(InputMerFibTest, ABusinessYearThatBeginsInAprilEndsInTheNextCalendarYear) {
  ClientFile({"1001;Müller;;;;April"});
  EXPECT_EQ(Written("2003", "2004"), (Lines{"1001;01.04.2003;31.03.2004;", "1001;01.04.2004;31.03.2005;"}));
  ExpectLog({"Abweichendes WJ: 31.03.2004", "Abweichendes WJ: 31.03.2005", "ShowInputMerFib (8)"});
}

TEST_F(InputMerFibTest, AllMonthsByTheirGermanNames) {
  const Lines months = {"Februar", "März",      "April",   "Mai",      "Juni",    "Juli",
                        "August",  "September", "Oktober", "November", "Dezember"};
  Lines file, expected;
  for (std::size_t i = 0; i < months.size(); ++i) {
    file.push_back(std::to_string(i) + ";;;;;" + months[i]);
    const std::string month = (i + 2 < 10 ? "0" : "") + std::to_string(i + 2);
    expected.push_back(std::to_string(i) + ";01." + month + ".2003;");
  }
  ClientFile(file);
  const Lines ends = {"31.01.2004", "29.02.2004", "31.03.2004", "30.04.2004", "31.05.2004", "30.06.2004",
                      "31.07.2004", "31.08.2004", "30.09.2004", "31.10.2004", "30.11.2004"};
  for (std::size_t i = 0; i < ends.size(); ++i) expected[i] += ends[i] + ";";
  EXPECT_EQ(Written("2003", "2003"), expected);
}

TEST_F(InputMerFibTest, JanuaryInAnyCaseIsJanuary) {
  ClientFile({"1;;;;;JANUAR", "2;;;;;januar"});
  EXPECT_EQ(Written("2003", "2003"), (Lines{"1;01.01.2003;31.12.2003;", "2;01.01.2003;31.12.2003;"}));
  ExpectLog({"ShowInputMerFib (8)"});
}

TEST_F(InputMerFibTest, EqualYearsGiveOneLineAClientInTheOrderOfTheList) {
  EXPECT_EQ(Written("2005", "2005"), (Lines{"1001;01.01.2005;31.12.2005;", "1002;01.04.2005;31.03.2006;"}));
}

TEST_F(InputMerFibTest, YearsAscendWithinAClient) {
  EXPECT_EQ(Written("2004", "2005"), (Lines{"1001;01.01.2004;31.12.2004;", "1001;01.01.2005;31.12.2005;",
                                            "1002;01.04.2004;31.03.2005;", "1002;01.04.2005;31.03.2006;"}));
}

TEST_F(InputMerFibTest, ClientNumbersAreWrittenAsInTheClientFile) {
  ClientFile({" 0100 ;;;;;Januar", "A12;;;;;Januar"});
  EXPECT_EQ(Written("2003", "2003"), (Lines{" 0100 ;01.01.2003;31.12.2003;", "A12;01.01.2003;31.12.2003;"}));
}

TEST_F(InputMerFibTest, ClientsWithoutAMarkAreLeftOut) {
  Show([] {
    ClickBox(frmInputMerFib.lstViewMandanten, 0);
    TypeYears("2005", "2005");
    Press(frmInputMerFib.cmdOK);
  });
  EXPECT_EQ(LinesOf(kWorkFile), Lines{"1002;01.04.2005;31.03.2006;"});
}

TEST_F(InputMerFibTest, WithoutAnyMarkTheWorkFileIsEmpty) {
  PutFile(kWorkFile, "alt");
  Show([] {
    ClickBox(frmInputMerFib.lstViewMandanten, 0);
    ClickBox(frmInputMerFib.lstViewMandanten, 1);
    TypeYears("2005", "2005");
    Press(frmInputMerFib.cmdOK);
  });
  EXPECT_EQ(frmInputMerFib.InputState(), 8);
  EXPECT_TRUE(platform::FileExists(kWorkFile));
  EXPECT_EQ(GetFile(kWorkFile), "");
  EXPECT_TRUE(MessageBoxes().empty());
}

TEST_F(InputMerFibTest, ASecondConfirmationWritesTheFileAnew) {
  Written("2003", "2005");
  EXPECT_EQ(Written("2005", "2005"), (Lines{"1001;01.01.2005;31.12.2005;", "1002;01.04.2005;31.03.2006;"}));
}

TEST_F(InputMerFibTest, TheWorkFilesPathIsTheResult) {
  EXPECT_EQ(Show([] {
              TypeYears("2005", "2006");
              Press(frmInputMerFib.cmdOK);
            }),
            kWorkFile);
  EXPECT_EQ(clients.MerlaMaxYear, "2006");
  EXPECT_EQ(clients.InputState, 0);
  EXPECT_FALSE(run.StopRun);
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(InputMerFibTest, TheLastYearIsKeptAsTyped) {
  Written("2005", " 2005 ");
  EXPECT_EQ(clients.MerlaMaxYear, " 2005 ");
}

TEST_F(InputMerFibTest, AnInvalidPeriodIsRefusedAndTheOldFileIsGone) {
  PutFile(kWorkFile, "alt");
  ExpectRefused("2005", "2004", "Bitte prüfen Sie Ihre Eingaben: Der Exportzeitraum ist ungültig!");
  EXPECT_FALSE(platform::FileExists(kWorkFile));
}

TEST_F(InputMerFibTest, YearsThatAreNoNumbersAreRefused) {
  const std::string message = "Fehler beim erzeugen der Mandantenmatrix: Typen unverträglich";
  ExpectRefused("", "", message);
  ExpectRefused("2005", "", message);
  ExpectRefused("zweitausend", "2005", message);
  EXPECT_FALSE(platform::FileExists(kWorkFile));
}

TEST_F(InputMerFibTest, APeriodOfMoreThan16BitsIsRefused) {
  ExpectRefused("0", "32768", "Fehler beim erzeugen der Mandantenmatrix: Überlauf");
  ExpectRefused("2005", "99999999999", "Fehler beim erzeugen der Mandantenmatrix: Überlauf");
}

TEST_F(InputMerFibTest, AMonthThatIsNoneIsRefusedAndTheLinesInFrontStay) {
  ClientFile({"1001;Müller;;;;Januar", "1002;Meier;;;;Brumaire", "1003;Schulz;;;;Januar"});
  ExpectRefused("2004", "2004", "Fehler beim erzeugen der Mandantenmatrix: Typen unverträglich");
  EXPECT_EQ(LinesOf(kWorkFile), Lines{"1001;01.01.2004;31.12.2004;"});
}

TEST_F(InputMerFibTest, AfterARefusalTheUserMayCorrectHisEntries) {
  ClientFile({"1001;Müller;;;;Januar", "1002;Meier;;;;Brumaire"});
  Show([] {
    TypeYears("2004", "2004");
    Press(frmInputMerFib.cmdOK);
    ClickBox(frmInputMerFib.lstViewMandanten, 1);
    Press(frmInputMerFib.cmdOK);
  });
  EXPECT_EQ(MessageBoxes().size(), 1u);
  EXPECT_EQ(frmInputMerFib.InputState(), 8);
  EXPECT_EQ(LinesOf(kWorkFile), Lines{"1001;01.01.2004;31.12.2004;"});
}

TEST_F(InputMerFibTest, AWorkFileThatCannotBeMadeIsRefused) {
  platform::simulated::SetEnvironmentVariable("temp", "C:\\Fehlt");
  ExpectRefused("2004", "2004", "Fehler beim erzeugen der Mandantenmatrix: Pfad nicht gefunden");
}

TEST_F(InputMerFibTest, AnOldWorkFileThatCannotBeDeletedIsRefused) {
  PutFile(kWorkFile, "alt");
  Fail("DeleteFileW", 1);
  ExpectRefused("2004", "2004", "Fehler beim erzeugen der Mandantenmatrix: Zugriff verweigert");
  EXPECT_EQ(GetFile(kWorkFile), "alt");
}

TEST_F(InputMerFibTest, AHundredThousandClientsTakeNoTimeForEachOther) {
  Lines file;
  for (int i = 0; i < 100000; ++i) file.push_back(std::to_string(i) + ";Mandant;;;;Januar");
  ClientFile(file);
  Show([] {
    Select("99998", "99999");
    TypeYears("2004", "2004");
    Press(frmInputMerFib.cmdOK);
  });
  EXPECT_EQ(LinesOf(kWorkFile), (Lines{"99998;01.01.2004;31.12.2004;", "99999;01.01.2004;31.12.2004;"}));
}

TEST_F(InputMerFibTest, CancelStopsTheRunAndYieldsNoFile) {
  clients.MerlaMaxYear = "2001";
  EXPECT_EQ(Show([] { TypeYears("2004", "2004"); }), "");
  EXPECT_EQ(frmInputMerFib.InputState(), -1);
  EXPECT_TRUE(run.StopRun);
  EXPECT_EQ(clients.MerlaMaxYear, "2001");
  EXPECT_FALSE(platform::FileExists(kWorkFile));
  ExpectLog({"ShowInputMerFib (-1)"});
}

TEST_F(InputMerFibTest, ClosingItBySystemMenuIsACancel) {
  Show([] { Close(frmInputMerFib); });
  EXPECT_EQ(frmInputMerFib.InputState(), -1);
  EXPECT_TRUE(run.StopRun);
}

TEST_F(InputMerFibTest, SelectionChecksTheRangeAndUnchecksTheRest) {
  ClientFile({"99;;;;;Mai", "100;;;;;Mai", "A12;;;;;Mai", "200;;;;;Mai", "201;;;;;Mai", "B12;;;;;Mai"});
  Show([] {
    ClickBox(frmInputMerFib.lstViewMandanten, 1);
    ClickBox(frmInputMerFib.lstViewMandanten, 5);
    Select("100", "200");
    EXPECT_EQ(Shown(), (Marks{false, true, true, true, false, false}));
  });
}

TEST_F(InputMerFibTest, SelectionComparesNumbersNotTexts) {
  ClientFile({"9;;;;;Mai", "0100;;;;;Mai", " 20 ;;;;;Mai"});
  Show([] {
    Select("5", "30");
    EXPECT_EQ(Shown(), (Marks{true, false, true}));
    Select("30", "5");
    EXPECT_EQ(Shown(), (Marks{false, false, false}));
  });
}

TEST_F(InputMerFibTest, SelectionWithoutTwoNumbersDoesNothing) {
  for (const auto& [from, to] : {std::pair{"", ""}, {"1", ""}, {"", "1"}, {"1", "x"}, {"1", "99999999999"}}) {
    Show([from = from, to = to] {
      Select(from, to);
      EXPECT_EQ(Shown(), (Marks{true, true})) << from << " to " << to;
    });
  }
}

TEST_F(InputMerFibTest, AClientNumberBeyond32BitsKeepsItsMark) {
  ClientFile({"99999999999;;;;;Mai", "5;;;;;Mai"});
  Show([] {
    Select("7", "8");
    EXPECT_EQ(Shown(), (Marks{true, false}));
  });
}

TEST_F(InputMerFibTest, FieldsTakeDigitsAndWhatStandsInFrontOfThem) {
  Show([] {
    for (forms::TextBox* field : {&frmInputMerFib.txtFrom, &frmInputMerFib.txtTo, &frmInputMerFib.txtMandantVon,
                                  &frmInputMerFib.txtMandantBis}) {
      EXPECT_EQ(Typed(*field, "a0b9-,.ä(/:*+\xFF"), "09") << field->name;
      EXPECT_EQ(Typed(*field, " !'\b\x16"), " !'\b\x16") << field->name;
    }
  });
}

TEST_F(InputMerFibTest, AMissingClientFileFailsTheRunWithAFixedName) {
  run.LastError.clear();
  EXPECT_EQ(ShowInputMerFib("", "C:\\Daten\\Fehlt.txt"), "");
  EXPECT_TRUE(run.RunFailed);
  EXPECT_EQ(run.LastError, "Die Mandantendatei ''MandantenFibu.txt'' existiert nicht!");
  EXPECT_FALSE(frmInputMerFib.Loaded());
}

TEST_F(InputMerFibTest, ALineOfFiveFieldsFailsTheRun) {
  ClientFile({"1001;Müller;;;;Januar", "1002;Meier;;;April", "1003;Schulz;;;;Mai"});
  ExpectFailure("Fehler in Funktion ShowData:Index außerhalb des gültigen Bereichs");
}

TEST_F(InputMerFibTest, AnEmptyLineFailsTheRun) {
  ClientFile({"1001;Müller;;;;Januar", ""});
  ExpectFailure("Fehler in Funktion ShowData:Index außerhalb des gültigen Bereichs");
}

TEST_F(InputMerFibTest, AFileOfLessThanTwoLinesFailsTheRun) {
  for (const char* text : {"", "Kopf", "Kopf\r\n"}) {
    PutFile(kClients, text);
    ExpectFailure("Fehler in Funktion ShowData:Eingabe hinter Dateiende");
  }
}

TEST_F(InputMerFibTest, AFileThatCannotBeReadFailsTheRun) {
  Fail("OpenFile", 1);
  ExpectFailure("Fehler in Funktion ShowData:Zugriff verweigert");
}

TEST_F(InputMerFibTest, AFileWithoutClientsGivesAnEmptyList) {
  ClientFile({});
  Show([] { EXPECT_EQ(Shown(), Marks{}); });
  EXPECT_FALSE(run.RunFailed);
}

TEST_F(InputMerFibTest, OfADoubledNumberTheFirstLineStays) {
  ClientFile({"1001;Müller;;;;Januar", "1001;Meier;;;;April", "1002;Schulz;;;;Mai"});
  Show([] {
    EXPECT_EQ(Shown(), (Marks{true, true}));
    EXPECT_EQ(frmInputMerFib.lstViewMandanten.SubItem(0, 2), "Müller");
    EXPECT_EQ(frmInputMerFib.lstViewMandanten.SubItem(1, 2), "Schulz");
  });
  EXPECT_EQ(run.LastError, "");
}

TEST_F(InputMerFibTest, ALineOfAMegabyteIsTakenWhole) {
  const std::string name(1 << 20, 'x');
  ClientFile({"1001;" + name + ";;;;Mai", "1002;Meier;;;;Mai"});
  Show([&] {
    EXPECT_EQ(Shown(), (Marks{true, true}));
    EXPECT_EQ(frmInputMerFib.lstViewMandanten.SubItem(0, 2), name);
  });
}

TEST_F(InputMerFibTest, ALastLineWithoutALineEndCounts) {
  PutFile(kClients, "a\r\nb\r\n1001;Müller;;;;Januar");
  Show([] { EXPECT_EQ(Shown(), Marks{true}); });
}

TEST_F(InputMerFibTest, ANestedRunCannotAskWhileTheDialogWaits) {
  Show([] {
    EXPECT_EQ(ShowInputMerFib("noch einmal", kClients), "");
    EXPECT_TRUE(run.RunFailed);
    EXPECT_EQ(
        run.LastError,
        "Fehler in Funktion ShowInputMerFib:Formular wird bereits angezeigt; kann nicht als modal angezeigt werden");
    EXPECT_EQ(Shown(), (Marks{true, true}));
  });
}

TEST_F(InputMerFibTest, TheVerbsValueIsThePathAndItsVariableTheLastYear) {
  User([] {
    TypeYears("2004", "2005");
    Press(frmInputMerFib.cmdOK);
  });
  EXPECT_TRUE(RunLines({"MSG=<$MERLAMAXYEAR>", "DIM datei", "datei=SHOWINPUTMERFIB(Mandanten?,C:\\Daten\\Liste.txt)",
                        "MSG=datei", "MSG=$MERLAMAXYEAR"}));
  ExpectLog(Completed({"MSG: <>", "Abweichendes WJ: 31.03.2005", "Abweichendes WJ: 31.03.2006", "ShowInputMerFib (8)",
                       "ShowInputMerFib: Variable wurde befüllt: C:\\Temp\\QUMeFib.csv", "MSG: C:\\Temp\\QUMeFib.csv",
                       "MSG: 2005"}));
}

TEST_F(InputMerFibTest, TheVerbFailsTheRunWithoutItsFile) {
  EXPECT_FALSE(RunLines({"SHOWINPUTMERFIB=Mandanten?,C:\\fehlt.txt", "MSG=weiter"}));
  ExpectLog({"ShowInputMerFib: Variable wurde befüllt: ", "Die Mandantendatei ''MandantenFibu.txt'' existiert nicht!"});
}

TEST_F(InputMerFibTest, CancelEndsTheRunBehindTheVerb) {
  User([] { Press(frmInputMerFib.cmdCancel); });
  EXPECT_TRUE(RunLines({"SHOWINPUTMERFIB=Mandanten?,C:\\Daten\\Liste.txt", "MSG=weiter"}));
  ExpectLog({"ShowInputMerFib (-1)", "ShowInputMerFib: Variable wurde befüllt: ", kStopped, kStars});
}

}  // namespace
