#include "engine/user_variables.h"

#include <gtest/gtest.h>

#include "runtime/fault.h"

namespace {

using namespace basMain;

std::string ValueOf(const UserVariableTable& table, const std::string& name) {
  return table.Value(table.FindDeclared(name).value());
}

TEST(UserVariablesTest, AFreshTableHasOnlyItsSpareRecord) {
  UserVariableTable table;
  EXPECT_FALSE(table.AnyDeclared());
  EXPECT_FALSE(table.FindDeclared("x"));
  EXPECT_FALSE(table.FindDeclared(""));
  EXPECT_FALSE(table.Find("x"));
  EXPECT_EQ(table.Find(""), 0u);
}

TEST(UserVariablesTest, ADeclarationNamesTheSpareRecord) {
  UserVariableTable table;
  table.Declare("x");
  EXPECT_TRUE(table.AnyDeclared());
  EXPECT_EQ(table.FindDeclared("x"), 0u);
  EXPECT_EQ(table.Find("x"), 0u);
  EXPECT_EQ(table.Find(""), 1u);
  EXPECT_EQ(ValueOf(table, "x"), "");
}

TEST(UserVariablesTest, NamesAreComparedWithTheirCase) {
  UserVariableTable table;
  table.Declare("x");
  EXPECT_FALSE(table.Find("X"));
  EXPECT_FALSE(table.Find(" x"));
}

TEST(UserVariablesTest, TheFirstOfTwoEqualNamesIsFound) {
  UserVariableTable table;
  table.Declare("x");
  table.Declare("x");
  EXPECT_EQ(table.Find("x"), 0u);
  EXPECT_EQ(table.Find(""), 2u);
}

TEST(UserVariablesTest, ADeclarationInheritsTheValueOfTheSpareRecord) {
  UserVariableTable table;
  table.Declare("x");
  table.SetValue(table.Find("").value(), "5");
  table.Declare("y");
  EXPECT_EQ(ValueOf(table, "y"), "5");
  table.Declare("z");
  EXPECT_EQ(ValueOf(table, "z"), "");
}

TEST(UserVariablesTest, ADeclaredEmptyNameIsFoundBeforeTheSpareRecord) {
  UserVariableTable table;
  table.Declare("x");
  table.Declare("");
  table.Declare("y");
  EXPECT_EQ(table.Find(""), 1u);
  EXPECT_EQ(table.FindDeclared(""), 1u);
}

TEST(UserVariablesTest, ARecordThatIsNotThereIsAFault) {
  UserVariableTable table;
  table.Declare("x");
  table.SetValue(1, "übrig");
  EXPECT_EQ(table.Value(1), "übrig");
  EXPECT_THROW(table.SetValue(2, ""), runtime::Fault);
  EXPECT_THROW(table.Value(2), runtime::Fault);
}

}  // namespace
