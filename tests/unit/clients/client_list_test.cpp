// The walk over the client list.
#include "clients/client_list.h"

#include <algorithm>
#include <functional>

#include "automation/state.h"
#include "clients/state.h"
#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

const std::vector<std::vector<std::string>> kClients = {{"A", "Althoff, Anna", "München", "99", "5099"},
                                                        {"H", "Höfner, Jürgen", "Landshut", "100", "5100"},
                                                        {"M", "Möslang, Xaver", "Tölz", "200", "5200"},
                                                        {"W", "Wößner, Erben", "Dachau", "201", "5201"}};

class ClientListTest : public SystemTest {
 protected:
  ClientListTest() {
    form_ = TargetWindow("Mandant öffnen");
    list_ = AddWindow({.className = "SysListView32", .parent = form_, .id = 5071});
    for (const auto& client : kClients) At(list_).rows.push_back({client});
  }

  static bool Step() { return VerifyList("5071", "Mandant öffnen", "1", ""); }

  static void Range(const std::string& from, const std::string& to) {
    clients.InputState = 4;
    clients.MandantNrFrom = from;
    clients.MandantNrTo = to;
  }

  bool InRange(const std::string& number) const {
    At(list_).rows[0].columns[3] = number;
    automation.ListIndex = 1;
    return VertifyMandantNr();
  }

  bool Selected(std::size_t row) const { return (At(list_).rows[row].state & platform::LVIS_SELECTED) != 0; }

  std::int32_t form_ = 0;
  std::int32_t list_ = 0;
};

// The columns.

TEST_F(ClientListTest, NameIsTheSecondColumnOfTheCurrentRow) {
  automation.ListIndex = 3;
  EXPECT_EQ(GetMandantName(), "Möslang, Xaver");
}

TEST_F(ClientListTest, NumberIsTheFourthColumnUnlessTheSettingIsOne) {
  automation.ListIndex = 3;
  EXPECT_EQ(GetMandantNummer(), "200");
  for (const char* value : {"0", "", "2", "01", "ja"}) {
    Setting("Einkommensteuer", "Basisnummer", value);
    EXPECT_EQ(GetMandantNummer(), "200") << value;
  }
}

TEST_F(ClientListTest, BasisnummerOneReadsTheFifthColumn) {
  Setting("Einkommensteuer", "Basisnummer", "1");
  automation.ListIndex = 3;
  EXPECT_EQ(GetMandantNummer(), "5200");
}

TEST_F(ClientListTest, VariablesAreTheColumnsOfTheCurrentRow) {
  clients.InputState = 0;
  EXPECT_TRUE(RunLines({"SELECTLIST=5071,Mandant öffnen,1,", "SELECTLIST=5071,Mandant öffnen,1,",
                        "MSG='$MANDANTNUMMER: $MANDANTNAME'"}));
  const Lines log = Log();
  EXPECT_EQ(std::count(log.begin(), log.end(), "MSG: 100: Höfner, Jürgen"), 1);
}

TEST_F(ClientListTest, WindowIsFoundByAPartOfItsTitle) {
  At(form_).text = "TeRu: Mandant öffnen (4 Einträge)";
  automation.ListIndex = 1;
  EXPECT_EQ(GetMandantName(), "Althoff, Anna");
}

TEST_F(ClientListTest, AnotherListOfTheDialogIsNotTaken) {
  DestroyWindow(list_);
  const std::int32_t other = AddWindow({.className = "SysListView32", .parent = form_, .id = 5070});
  At(other).rows.push_back({kClients[0]});
  automation.ListIndex = 1;
  EXPECT_EQ(GetMandantName(), "<unbekannt>");
}

TEST_F(ClientListTest, EmptyCellsAreUnknownAndAnEmptyListIsEmpty) {
  automation.ListIndex = 1;
  At(list_).rows[0].columns[1] = "";
  EXPECT_EQ(GetMandantName(), "<unbekannt>");
  At(list_).rows.clear();
  EXPECT_EQ(GetMandantName(), "");
  EXPECT_EQ(GetMandantNummer(), "");
  DestroyWindow(list_);
  EXPECT_EQ(GetMandantName(), "<unbekannt>");
  EXPECT_EQ(GetMandantNummer(), "<unbekannt>");
}

// "IF VERTIFYMANDANTNR".

TEST_F(ClientListTest, WithoutARangeEveryClientIsInIt) {
  for (const std::int32_t state : {0, 1, 2, 3, -1}) {
    clients.InputState = state;
    EXPECT_TRUE(VertifyMandantNr()) << state;
  }
  ExpectLog(Lines(5, "VertifyMandantNr=True"));
}

TEST_F(ClientListTest, BothEndsBelongToTheRange) {
  Range("100", "200");
  for (const auto& [number, inside] : {std::pair{"99", false},
                                       {"100", true},
                                       {"150", true},
                                       {"200", true},
                                       {"201", false},
                                       {"-100", false},
                                       {"1000", false}})
    EXPECT_EQ(InRange(number), inside) << number;
}

TEST_F(ClientListTest, AClientInTheRangeIsLogged) {
  Range("100", "200");
  automation.ListIndex = 2;
  EXPECT_TRUE(VertifyMandantNr());
  const Lines log = Log();
  ASSERT_GE(log.size(), 2u);
  EXPECT_EQ(log[log.size() - 2], "VertifyMandantNr: 100");
  EXPECT_EQ(log.back(), "VertifyMandantNr-> From 100 To 200 = TRUE");
}

TEST_F(ClientListTest, AClientOutsideTheRangeIsLogged) {
  Range("100", "200");
  automation.ListIndex = 4;
  EXPECT_FALSE(VertifyMandantNr());
  const Lines log = Log();
  ASSERT_GE(log.size(), 2u);
  EXPECT_EQ(log[log.size() - 2], "VertifyMandantNr: 201");
  EXPECT_EQ(log.back(), "VertifyMandantNr=False");
}

TEST_F(ClientListTest, TheRangeIsComparedAsNumbers) {
  Range("0099", " 1.000 ");
  EXPECT_TRUE(InRange("99"));
  EXPECT_TRUE(InRange("1000"));
  EXPECT_FALSE(InRange("1001"));
  Range("100,5", "9999999999");
  EXPECT_FALSE(InRange("100"));
  EXPECT_TRUE(InRange("2147483647"));
  Range("100", "199,5");
  EXPECT_FALSE(InRange("200"));
}

TEST_F(ClientListTest, ARangeThatEndsBeforeItBeginsHoldsNobody) {
  Range("200", "100");
  EXPECT_FALSE(InRange("100"));
  EXPECT_FALSE(InRange("150"));
  EXPECT_FALSE(InRange("200"));
}

TEST_F(ClientListTest, ANumberThatCannotBeReadCountsAsNought) {
  Range("1", "200");
  EXPECT_FALSE(InRange("A12"));
  EXPECT_FALSE(InRange("99999999999"));
  DestroyWindow(list_);
  EXPECT_FALSE(VertifyMandantNr());
  EXPECT_EQ(Log()[Log().size() - 2], "VertifyMandantNr: 0");
  Range("0", "200");
  EXPECT_TRUE(VertifyMandantNr());
}

TEST_F(ClientListTest, TheBasisnummerIsWhatTheRangeIsComparedWithWhereItIsChosen) {
  Setting("Einkommensteuer", "Basisnummer", "1");
  Range("5100", "5200");
  automation.ListIndex = 2;
  EXPECT_TRUE(VertifyMandantNr());
  automation.ListIndex = 1;
  EXPECT_FALSE(VertifyMandantNr());
}

TEST_F(ClientListTest, TheVerbIsSpelledWithATInTheMiddle) {
  EXPECT_TRUE(RunLines({"IF VERTIFYMANDANTNR", "MSG=ja", "ENDIF"}));
  EXPECT_EQ(Log()[1], "MSG: ja");
  EXPECT_FALSE(RunLines({"IF VERIFYMANDANTNR", "MSG=ja", "ENDIF"}));
  EXPECT_EQ(run.LastError, "Unknown Command: IF VERIFYMANDANTNR");
}

// "VERIFYLIST".

TEST_F(ClientListTest, WithoutAnAnswerTheWalkDoesNotMove) {
  for (const std::int32_t state : {0, 3, -1, 8}) {
    clients.InputState = state;
    EXPECT_TRUE(Step()) << state;
  }
  EXPECT_EQ(automation.ListIndex, 0);
  EXPECT_EQ(Log(), Lines{});
}

TEST_F(ClientListTest, AllClientsAndARangeStepToTheNextRow) {
  for (const std::int32_t state : {1, 4}) {
    clients.InputState = state;
    automation.ListIndex = 0;
    run.YearUpper = 1;
    EXPECT_TRUE(Step());
    EXPECT_EQ(automation.ListIndex, 1) << state;
    EXPECT_EQ(automation.ListCount, 4) << state;
    EXPECT_TRUE(Selected(0)) << state;
  }
}

TEST_F(ClientListTest, TheWalkStaysOnTheClientUntilItsYearsAreUsedUp) {
  clients.InputState = 1;
  run.YearUpper = 1;
  EXPECT_TRUE(Step());
  run.YearIndex = 1;
  EXPECT_TRUE(Step());
  EXPECT_EQ(automation.ListIndex, 1);
  EXPECT_EQ(Log().back(), "VJ False");
  run.YearIndex = 2;
  EXPECT_TRUE(Step());
  EXPECT_EQ(automation.ListIndex, 2);
  EXPECT_EQ(run.YearIndex, 0);
}

TEST_F(ClientListTest, TheMarkedClientAloneIsTakenAndTheListEndsBehindIt) {
  clients.InputState = 2;
  At(list_).selectionMark = 2;
  EXPECT_TRUE(Step());
  EXPECT_TRUE(Selected(2));
  EXPECT_EQ(automation.ListIndex, 3);
  EXPECT_EQ(automation.ListCount, 3);
  EXPECT_EQ(GetMandantNummer(), "200");
}

TEST_F(ClientListTest, TheListIsFoundByAPartOfTheTitleAndByItsText) {
  clients.InputState = 1;
  At(list_).text = "Liste";
  At(list_).process = kOwnProcess;  // the system tells the text of a control to its own process only
  EXPECT_TRUE(VerifyList("5071", "öffnen", "", "anders"));
  EXPECT_EQ(automation.ListIndex, 0);
  EXPECT_TRUE(VerifyList("5071", "öffnen", "", "Liste"));
  EXPECT_EQ(automation.ListIndex, 1);
}

TEST_F(ClientListTest, AListWithoutRowsIsNotLookedAt) {
  clients.InputState = 1;
  At(list_).rows.clear();
  EXPECT_TRUE(Step());
  EXPECT_EQ(automation.ListIndex, 0);
  DestroyWindow(list_);
  EXPECT_TRUE(Step());
  EXPECT_EQ(automation.ListIndex, 0);
}

TEST_F(ClientListTest, AnIdThatIsNoNumberIsNoFailureOfTheStep) {
  clients.InputState = 1;
  EXPECT_TRUE(VerifyList("x", "Mandant öffnen", "1", ""));
  EXPECT_EQ(automation.ListIndex, 0);
}

// Whole walks: a macro of clients times years. A message stands in for the dialog that asks for the range.

class ClientWalkTest : public ClientListTest {
 protected:
  // What the body of the loop was run for.
  Lines Walk(const std::string& years, std::function<void()> answer) {
    Setting("Einkommensteuer", "Veranlagungsjahr", years);
    // The run clears the answer at its start, so it is given while the macro waits.
    Schedule(100, std::move(answer));
    EXPECT_TRUE(RunLines({"WAIT=200", "DO", "VERIFYLIST=5071,Mandant öffnen,1,", "IF VERTIFYMANDANTNR",
                          "MSG=$MANDANTNUMMER/$WJ", "ENDIF", "NEXT VJ", "LOOP UNTIL COUNT", "MSG=Ende"}));
    Lines walked;
    for (const std::string& line : Log())
      if (line.starts_with("MSG: ")) walked.push_back(line.substr(5));
    return walked;
  }
};

TEST_F(ClientWalkTest, AllClientsTimesAllYears) {
  EXPECT_EQ(
      Walk("2003,2004", [] { clients.InputState = 1; }),
      (Lines{"99/2003", "99/2004", "100/2003", "100/2004", "200/2003", "200/2004", "201/2003", "201/2004", "Ende"}));
}

TEST_F(ClientWalkTest, ARangeSkipsClientsButDoesNotShortenTheWalk) {
  EXPECT_EQ(Walk("2003,2004", [] { Range("100", "200"); }),
            (Lines{"100/2003", "100/2004", "200/2003", "200/2004", "Ende"}));
  EXPECT_EQ(automation.ListIndex, 4);
}

TEST_F(ClientWalkTest, OneYearIsEnough) {
  EXPECT_EQ(Walk("2005", [] { Range("200", "201"); }), (Lines{"200/2005", "201/2005", "Ende"}));
}

TEST_F(ClientWalkTest, TheMarkedClientTimesAllYears) {
  At(list_).selectionMark = 2;
  EXPECT_EQ(Walk("2003,2004,2005", [] { clients.InputState = 2; }),
            (Lines{"200/2003", "200/2004", "200/2005", "Ende"}));
}

TEST_F(ClientWalkTest, AResumeForgetsTheAnswerButKeepsTheRange) {
  Range("100", "200");
  LoadLines({"RAISEERROR=Pause", "IF VERTIFYMANDANTNR", "MSG=ja", "ENDIF"});
  EXPECT_FALSE(ProcessMakro(0));
  clients.InputState = 4;
  EXPECT_TRUE(ProcessMakro(run.CurrentLine));
  EXPECT_EQ(clients.InputState, 0);
  EXPECT_EQ(clients.MandantNrFrom, "100");
  EXPECT_EQ(Log()[1], "VertifyMandantNr=True");
  EXPECT_EQ(Log()[2], "MSG: ja");
}

// "IF BASISNUMMER".

TEST_F(ClientListTest, BasisnummerIsComparedAsText) {
  EXPECT_TRUE(IfBasisnummer("0"));
  EXPECT_FALSE(IfBasisnummer(""));
  EXPECT_FALSE(IfBasisnummer("1"));
  Setting("Einkommensteuer", "Basisnummer", "1");
  EXPECT_TRUE(IfBasisnummer("1"));
  EXPECT_FALSE(IfBasisnummer("01"));
  Setting("Einkommensteuer", "Basisnummer", "Ja");
  EXPECT_FALSE(IfBasisnummer("ja"));
}

TEST_F(ClientListTest, BasisnummerDecidesABranch) {
  Setting("Einkommensteuer", "Basisnummer", "1");
  EXPECT_TRUE(RunLines({"IF BASISNUMMER=1", "MSG=Basis", "ELSE", "MSG=Mandant", "ENDIF"}));
  EXPECT_EQ(Log()[0], "MSG: Basis");
  EXPECT_TRUE(RunLines({"IF BASISNUMMER=0", "MSG=Basis", "ELSE", "MSG=Mandant", "ENDIF"}));
  EXPECT_EQ(Log()[3], "MSG: Mandant");
}

}  // namespace
