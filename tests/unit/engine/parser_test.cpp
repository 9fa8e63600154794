// The line parser by itself: verb, arguments, user variables. What can be said in a macro stands in tests/macros.
#include "engine/parser.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "engine/state.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"
#include "support/system.h"

namespace {

using namespace basMain;
using support::Log;

std::vector<std::string> Fields(const std::string& text, std::size_t size) {
  std::vector<std::string> fields(size, "alt");
  SplitString(text, fields);
  return fields;
}

using Texts = std::vector<std::string>;

TEST(SplitStringTest, EmptiesAllFieldsFirst) { EXPECT_EQ(Fields("a", 3), (Texts{"a", "", ""})); }

TEST(SplitStringTest, ACommaEndsAField) {
  EXPECT_EQ(Fields("a,b,c", 4), (Texts{"a", "b", "c", ""}));
  EXPECT_EQ(Fields(",b", 3), (Texts{"", "b", ""}));
  EXPECT_EQ(Fields("a,", 3), (Texts{"a", "", ""}));
  EXPECT_EQ(Fields("a,,b", 3), (Texts{"a", "", "b"}));
}

TEST(SplitStringTest, TheEmptyTextIsOneEmptyField) { EXPECT_EQ(Fields("", 2), (Texts{"", ""})); }

TEST(SplitStringTest, FieldsAreNotTrimmed) { EXPECT_EQ(Fields(" a , b", 2), (Texts{" a ", " b"})); }

TEST(SplitStringTest, SingleQuotesProtectCommasAndVanish) {
  EXPECT_EQ(Fields("'a,b',c", 3), (Texts{"a,b", "c", ""}));
  EXPECT_EQ(Fields("a'b,c'd,e", 3), (Texts{"ab,cd", "e", ""}));
  EXPECT_EQ(Fields("'','a'", 3), (Texts{"", "a", ""}));
}

TEST(SplitStringTest, AnOpenQuoteSwallowsTheRest) {
  EXPECT_EQ(Fields("'a,b", 2), (Texts{"", ""}));
  EXPECT_EQ(Fields("a,'b,c,", 3), (Texts{"a", "", ""}));
  EXPECT_EQ(Fields("'", 2), (Texts{"", ""}));
}

TEST(SplitStringTest, SurplusFieldsAreDropped) {
  EXPECT_EQ(Fields("a,b,c", 2), (Texts{"a", "b"}));
  EXPECT_EQ(Fields("a", 0), Texts{});
}

TEST(SplitStringTest, SixFieldsForTheMacroTable) {
  EXPECT_EQ(Fields("TARVEN,QUMAFIBU.MAK,3,4,5,6,7", 6), (Texts{"TARVEN", "QUMAFIBU.MAK", "3", "4", "5", "6"}));
}

class ParserTest : public support::SystemTest {
 protected:
  // The verb and the seven arguments.
  static Texts Parse(const std::string& line) {
    std::string verb = "alt";
    Arguments a;
    a.fill("alt");
    EXPECT_TRUE(ParseMakroLine(line, verb, a));
    Texts parsed = {verb};
    parsed.insert(parsed.end(), a.begin() + 1, a.end());
    return parsed;
  }

  static void Declare(const std::string& name, const std::string& value) {
    run.UserVariables.Declare(name);
    run.UserVariables.SetValue(run.UserVariables.Find(name).value(), value);
  }
};

TEST_F(ParserTest, AVerbAloneHasEmptyArguments) { EXPECT_EQ(Parse("msg"), (Texts{"MSG", "", "", "", "", "", "", ""})); }

TEST_F(ParserTest, TheVerbIsFoldedAndNotTrimmed) { EXPECT_EQ(Parse(" if größe =a")[0], " IF GRÖßE "); }

TEST_F(ParserTest, SevenArgumentsAreDelivered) {
  EXPECT_EQ(Parse("V=1,2,3,4,5,6,7"), (Texts{"V", "1", "2", "3", "4", "5", "6", "7"}));
}

TEST_F(ParserTest, EightAndMoreArgumentsPassSeven) {
  EXPECT_EQ(Parse("V=1,2,3,4,5,6,7,8"), (Texts{"V", "1", "2", "3", "4", "5", "6", "7"}));
  EXPECT_EQ(Parse("V=1,2,3,4,5,6,7,8,9,10,11,12,13,14"), (Texts{"V", "1", "2", "3", "4", "5", "6", "7"}));
}

TEST_F(ParserTest, TheArgumentsEndAtTheirFirstEquals) {
  EXPECT_EQ(Parse("V=a,b=c,d"), (Texts{"V", "a", "b", "", "", "", "", ""}));
  EXPECT_EQ(Parse("V='a=b'"), (Texts{"V", "", "", "", "", "", "", ""}));
  EXPECT_EQ(Parse("=a"), (Texts{"", "a", "", "", "", "", "", ""}));
}

TEST_F(ParserTest, ALineOfDoubleQuotesIsAnEmptyVerb) {
  EXPECT_EQ(Parse("\"\"\""), (Texts{"", "", "", "", "", "", "", ""}));
}

TEST_F(ParserTest, EveryArgumentIsReplacedByItsVariable) {
  Declare("x", "1");
  EXPECT_EQ(Parse("V=x,x,x,x,x,x,x,x"), (Texts{"V", "1", "1", "1", "1", "1", "1", "1"}));
}

TEST_F(ParserTest, AnAbsentArgumentIsReplacedByTheVariableWithoutName) {
  Declare("", "leer");
  EXPECT_EQ(Parse("V=a"), (Texts{"V", "a", "leer", "leer", "leer", "leer", "leer", "leer"}));
  EXPECT_EQ(Parse("V"), (Texts{"V", "", "", "", "", "", "", ""}));
}

TEST_F(ParserTest, TheSpareRecordReplacesNoArgument) {
  Declare("x", "1");
  run.UserVariables.SetValue(run.UserVariables.Find("").value(), "übrig");
  EXPECT_EQ(Parse("V="), (Texts{"V", "", "", "", "", "", "", ""}));
}

TEST_F(ParserTest, TheFirstOfTwoEqualNamesIsTaken) {
  Declare("x", "1");
  run.UserVariables.Declare("x");
  EXPECT_EQ(Parse("V=x")[1], "1");
}

TEST_F(ParserTest, AValueIsNeitherLookedUpAgainNorExpandedNorSplit) {
  Declare("a", "b");
  Declare("b", "c");
  Declare("d", "$DATE,'x'=y\"z");
  EXPECT_EQ(Parse("V=a,d"), (Texts{"V", "b", "$DATE,'x'=y\"z", "", "", "", "", ""}));
}

TEST_F(ParserTest, AValueWithACommaSpreadsOverTwoArguments) {
  support::InstallSuite("C:\\Meier, Otto");
  EXPECT_EQ(Parse("V=$TERUPATH,b"), (Texts{"V", "C:\\Meier", " Otto\\Extern", "b", "", "", "", ""}));
}

TEST_F(ParserTest, AValueWithACommaInSingleQuotesIsOneArgument) {
  support::InstallSuite("C:\\Meier, Otto");
  EXPECT_EQ(Parse("V='$TERUPATH',b"), (Texts{"V", "C:\\Meier, Otto\\Extern", "b", "", "", "", "", ""}));
}

TEST_F(ParserTest, AValueWithAnEqualsCutsTheLine) {
  support::InstallSuite("C:\\A=B");
  EXPECT_EQ(Parse("V=$TERUPATH,b"), (Texts{"V", "C:\\A", "", "", "", "", "", ""}));
}

TEST_F(ParserTest, AValueThatHoldsALaterNameIsScannedForIt) {
  support::InstallSuite("C:\\$DATE");  // $TERUPATH is substituted before $DATE
  EXPECT_EQ(Parse("V=$TERUPATH")[1], "C:\\14.03.2006\\Extern");
}

TEST_F(ParserTest, AValueThatHoldsAnEarlierNameKeepsIt) {
  support::InstallSuite("C:\\$WJ");  // $WJ is substituted before $TERUPATH
  EXPECT_EQ(Parse("V=$TERUPATH")[1], "C:\\$WJ\\Extern");
}

TEST_F(ParserTest, AValueIsComputedOnceForAllItsPlaces) {
  support::InstallSuite("C:\\TeRu");
  EXPECT_EQ(Parse("V=$TERUPATH,$TERUPATH")[2], "C:\\TeRu\\Extern");
  const auto log = Log();
  EXPECT_EQ(std::count(log.begin(), log.end(), "GetTeRuDestination (2. RegValue): C:\\TeRu"), 1);
}

TEST_F(ParserTest, AComputationIsNotStartedByALineWithoutTheName) {
  support::InstallSuite("C:\\TeRu");
  EXPECT_EQ(Parse("V=TERUPATH,$terupath,$TERU"), (Texts{"V", "TERUPATH", "$terupath", "$TERU", "", "", "", ""}));
  EXPECT_EQ(Log(), Texts{});
}

TEST_F(ParserTest, AnExportPathIsReplacedInsideALongerWord) {
  support::InstallSuite("C:\\TeRu");
  support::TargetWindow("TARVEN/4711/2005/FIBU");
  EXPECT_EQ(Parse("SETTEXT=$PATHX")[1], "C:\\TeRu\\Extern\\4711\\2005X");
}

TEST_F(ParserTest, ALineThatAValueEmptiesIsAnEmptyVerb) {
  support::InstallSuite("C:\\TeRu");  // without a client the path of the area is empty
  EXPECT_EQ(Parse("$GDPDUPATH"), (Texts{"", "", "", "", "", "", "", ""}));
}

// The rules for a line, each read plainly for itself; x is a variable with the value 1.
Texts ByTheRules(const std::string& line) {
  Texts result(8);
  Texts parts = {""};
  for (const char c : line) {
    if (c == '"') continue;
    if (c == '=') parts.emplace_back();
    else parts.back() += c;
  }
  for (const char c : parts[0]) result[0] += static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c);
  if (parts.size() == 1) return result;

  Texts fields;
  std::string text = parts[1];
  if (text.empty() || text.back() != ',') text += ',';
  bool quoted = false;
  std::string field;
  for (const char c : text) {
    if (c == '\'') {
      quoted = !quoted;
    } else if (c == ',' && !quoted) {
      fields.push_back(field);
      field.clear();
    } else {
      field += c;
    }
  }
  for (std::size_t i = 0; i < 7 && i < fields.size(); ++i) result[i + 1] = fields[i] == "x" ? "1" : fields[i];
  return result;
}

TEST_F(ParserTest, EveryShortLineIsParsedByTheRules) {
  Declare("x", "1");
  const std::string characters = "ax=,'\"";
  Texts lines = {""};
  for (std::size_t i = 0; lines[i].size() < 5; ++i)
    for (const char c : characters) lines.push_back(lines[i] + c);
  ASSERT_EQ(lines.size(), 9331u);  // the sum of the powers of 6 up to the fifth
  for (const std::string& line : lines) ASSERT_EQ(Parse(line), ByTheRules(line)) << line;
}

}  // namespace
