#include "engine/built_in_variables.h"

#include <algorithm>

#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"
#include "support/system.h"

namespace {

using namespace basMain;
using support::Completed;
using support::Log;
using support::RunLines;
using support::Setting;

using Texts = std::vector<std::string>;

TEST(BuiltInVariablesTest, TheTableIsCompleteAndInTheOrderOfSubstitution) {
  const Texts expected = {
      "$PATH",        "$GDPDUPATH", "$FIBUPATH",   "$CTLPATH",       "$FIBUMANDANTPATH",  "$MANDANTPATH",
      "$ANLPATH",     "$WJ",        "$TERUPATH",   "$MANDANTNAME",   "$MANDANTNUMMER",    "$NOW",
      "$DATE",        "$TEMP",      "$MATRIXJAHR", "$MATRIXBEREICH", "$MERMATRIXJAHRBIS", "$MERMATRIXPATH",
      "$MERLAMAXYEAR"};
  Texts names;
  for (const BuiltInVariable& variable : BuiltInVariables()) names.push_back(variable.name);
  EXPECT_EQ(names, expected);
}

TEST(BuiltInVariablesTest, EachIsComputedBySomething) {
  for (const BuiltInVariable& variable : BuiltInVariables()) EXPECT_NE(variable.value, nullptr) << variable.name;
}

TEST(BuiltInVariablesTest, NoNameHoldsAnotherOne) {
  for (const BuiltInVariable& outer : BuiltInVariables())
    for (const BuiltInVariable& inner : BuiltInVariables()) {
      const bool holds = std::string(outer.name).find(inner.name) != std::string::npos;
      EXPECT_EQ(holds, std::string(outer.name) == inner.name) << outer.name << " " << inner.name;
    }
}

class BuiltInVariableRunTest : public support::SystemTest {
 protected:
  void SetYears(const std::string& years) { Setting("Einkommensteuer", "Veranlagungsjahr", years); }
};

TEST_F(BuiltInVariableRunTest, ANameThatIsNotInTheTableStaysText) {
  EXPECT_TRUE(RunLines({"MSG=$UNBEKANNT $path"}));
  EXPECT_EQ(Log(), Completed({"MSG: $UNBEKANNT $path"}));
}

TEST_F(BuiltInVariableRunTest, TheYearIsTheElementAtTheIndex) {
  SetYears("2003,2004,2005");
  EXPECT_EQ(AssessmentYear(), "2003");
  EXPECT_EQ(run.YearUpper, 2);
  run.YearIndex = 2;
  EXPECT_EQ(AssessmentYear(), "2005");
}

TEST_F(BuiltInVariableRunTest, AnIndexOutsideTheListGivesThePresentYear) {
  SetYears("2003,2004");
  for (const int index : {2, 3, -1, 32767, -32768}) {
    run.YearIndex = static_cast<std::int16_t>(index);
    EXPECT_EQ(AssessmentYear(), "2006") << index;
    EXPECT_EQ(run.YearUpper, 1);
  }
}

TEST_F(BuiltInVariableRunTest, AListOfOneYearHasTheUpperBoundZero) {
  run.YearUpper = 7;
  SetYears("2003");
  EXPECT_EQ(AssessmentYear(), "2003");
  EXPECT_EQ(run.YearUpper, 0);
}

TEST_F(BuiltInVariableRunTest, WithoutAListTheUpperBoundStays) {
  run.YearUpper = 7;
  EXPECT_EQ(AssessmentYear(), "2006");
  SetYears("");
  EXPECT_EQ(AssessmentYear(), "2006");
  EXPECT_EQ(run.YearUpper, 7);
}

TEST_F(BuiltInVariableRunTest, AnElementThatIsNoNumberGivesThePresentYear) {
  SetYears("alle,2004a,,2005");
  for (const int index : {0, 1, 2}) {
    run.YearIndex = static_cast<std::int16_t>(index);
    EXPECT_EQ(AssessmentYear(), "2006") << index;
  }
  run.YearIndex = 3;
  EXPECT_EQ(AssessmentYear(), "2005");
  EXPECT_EQ(run.YearUpper, 3);
}

TEST_F(BuiltInVariableRunTest, TheListIsReadAnewAtEachUse) {
  SetYears("2003");
  EXPECT_EQ(AssessmentYear(), "2003");
  SetYears("2004,2005");
  EXPECT_EQ(AssessmentYear(), "2004");
  EXPECT_EQ(run.YearUpper, 1);
}

TEST_F(BuiltInVariableRunTest, ThePresentYearIsThatOfTheClock) {
  platform::simulated::SetNow({1999, 12, 31, 23, 59, 59});
  EXPECT_EQ(AssessmentYear(), "1999");
  EXPECT_TRUE(RunLines({"WAIT=1000", "MSG=$WJ $DATE"}));
  EXPECT_EQ(Log(), Completed({"MSG: 2000 01.01.2000"}));
}

TEST_F(BuiltInVariableRunTest, NowAtMidnightHasNoTime) {
  platform::simulated::SetNow({2006, 3, 14, 0, 0, 0});
  EXPECT_TRUE(RunLines({"MSG=$NOW"}));
  EXPECT_EQ(Log(), Completed({"MSG: 14.03.2006"}));
}

TEST_F(BuiltInVariableRunTest, SkippedLinesComputeTheirPathsAndLogIt) {
  support::InstallSuite();
  EXPECT_TRUE(RunLines({"IF STRCOMP=a,b", "MSG=$TERUPATH", "ENDIF"}));
  const auto log = Log();
  EXPECT_EQ(log[0], "STRCOMP: a, b = False");
  EXPECT_EQ(std::count(log.begin(), log.end(), "GetTeRuDestination (2. RegValue): C:\\TeRu"), 1);
  EXPECT_EQ(std::count(log.begin(), log.end(), "Ausgabeverzeichnis erstellt: C:\\TeRu\\Extern\\"), 1);
  EXPECT_EQ(std::count(log.begin(), log.end(), "MSG: C:\\TeRu\\Extern"), 0);
}

}  // namespace
