#include "runtime/conversions.h"

#include <gtest/gtest.h>

#include "runtime/fault.h"

namespace {

using namespace runtime;

// The number of the fault that a conversion raises; none is a failure.
template <class Conversion>
FaultNumber FaultOf(Conversion conversion) {
  try {
    conversion();
  } catch (const Fault& fault) {
    return fault.number;
  }
  ADD_FAILURE() << "no fault";
  return FaultNumber::InvalidCall;
}

TEST(ConversionsTest, DigitsWithAnOptionalSignAreANumber) {
  for (const char* text : {"0", "7", "2005", "-1", "+1", "007"}) EXPECT_TRUE(IsNumeric(text)) << text;
}

TEST(ConversionsTest, TheGermanSeparatorsAreAccepted) {
  for (const char* text : {"1,5", ",5", "5,", "-,5", "1.000", "1.000.000,25"}) EXPECT_TRUE(IsNumeric(text)) << text;
}

TEST(ConversionsTest, BlanksAroundANumberAreAccepted) {
  for (const char* text : {" 1", "1 ", "   -2,5   "}) EXPECT_TRUE(IsNumeric(text)) << text;
}

TEST(ConversionsTest, TheEmptyTextIsNoNumber) {
  EXPECT_FALSE(IsNumeric(""));
  EXPECT_FALSE(IsNumeric("   "));
}

TEST(ConversionsTest, OtherTextsAreNoNumbers) {
  for (const char* text : {"abc", "1a",    "a1", "-",     "+",   ",",    ".",   "--1", "1-",  "1 2",
                           "- 1", "1,2,3", ".5", "1,5.0", "1e5", "0x10", "\t1", "$WJ", "'1'", "1\xA0"})
    EXPECT_FALSE(IsNumeric(text)) << text;
  EXPECT_FALSE(IsNumeric(std::string("1\0", 2)));
}

TEST(ConversionsTest, ADotStandsBetweenDigits) {
  for (const char* text : {"1.", "1..0", "1.,5", "1.-"}) EXPECT_FALSE(IsNumeric(text)) << text;
}

TEST(ConversionsTest, ReadsTheCommaAsDecimalMarkAndDropsTheDots) {
  EXPECT_EQ(ToDouble("1.234,5"), 1234.5);
  EXPECT_EQ(ToDouble(" -0,25 "), -0.25);
  EXPECT_EQ(ToDouble("5,"), 5.0);
  EXPECT_EQ(ToDouble(",5"), 0.5);
  EXPECT_EQ(ToDouble("+3"), 3.0);
}

TEST(ConversionsTest, WhatIsNoNumberIsATypeMismatch) {
  EXPECT_EQ(FaultOf([] { ToDouble(""); }), FaultNumber::TypeMismatch);
  EXPECT_EQ(FaultOf([] { ToLong("abc"); }), FaultNumber::TypeMismatch);
  EXPECT_EQ(FaultOf([] { ToInteger("1,2,3"); }), FaultNumber::TypeMismatch);
}

TEST(ConversionsTest, ANumberBeyondAllBoundsIsAnOverflow) {
  EXPECT_EQ(FaultOf([] { ToDouble(std::string(400, '9')); }), FaultNumber::Overflow);
}

TEST(ConversionsTest, RoundsToTheNearestWithTiesToEven) {
  EXPECT_EQ(ToLong("0,5"), 0);
  EXPECT_EQ(ToLong("1,5"), 2);
  EXPECT_EQ(ToLong("2,5"), 2);
  EXPECT_EQ(ToLong("2,51"), 3);
  EXPECT_EQ(ToLong("2,4999"), 2);
  EXPECT_EQ(ToLong("-0,5"), 0);
  EXPECT_EQ(ToLong("-1,5"), -2);
  EXPECT_EQ(ToLong("-2,5"), -2);
  EXPECT_EQ(ToInteger(0.5), 0);
  EXPECT_EQ(ToInteger(1.5), 2);
}

TEST(ConversionsTest, LongHas32Bits) {
  EXPECT_EQ(ToLong("2147483647"), 2147483647);
  EXPECT_EQ(ToLong("-2147483648"), -2147483647 - 1);
  EXPECT_EQ(ToLong("2147483647,4"), 2147483647);
  EXPECT_EQ(FaultOf([] { ToLong("2147483648"); }), FaultNumber::Overflow);
  EXPECT_EQ(FaultOf([] { ToLong("2147483647,5"); }), FaultNumber::Overflow);
  EXPECT_EQ(FaultOf([] { ToLong("-2147483649"); }), FaultNumber::Overflow);
}

TEST(ConversionsTest, IntegerHas16Bits) {
  EXPECT_EQ(ToInteger("32767"), 32767);
  EXPECT_EQ(ToInteger("-32768"), -32768);
  EXPECT_EQ(FaultOf([] { ToInteger("32768"); }), FaultNumber::Overflow);
  EXPECT_EQ(FaultOf([] { ToInteger("-32769"); }), FaultNumber::Overflow);
  EXPECT_EQ(FaultOf([] { ToInteger(32767.5); }), FaultNumber::Overflow);
  EXPECT_EQ(ToInteger(-32768.5), -32768);
}

TEST(ConversionsTest, TruthIsAWordInAnyCaseOrANumber) {
  EXPECT_TRUE(ToTruth("True"));
  EXPECT_TRUE(ToTruth("TRUE"));
  EXPECT_FALSE(ToTruth("False"));
  EXPECT_FALSE(ToTruth("false"));
  EXPECT_TRUE(ToTruth("-1"));
  EXPECT_TRUE(ToTruth("0,5"));
  EXPECT_FALSE(ToTruth("0"));
}

TEST(ConversionsTest, AnyOtherTextIsNoTruth) {
  for (const char* text : {"", "Wahr", "True ", "x"})
    EXPECT_EQ(FaultOf([&] { ToTruth(text); }), FaultNumber::TypeMismatch) << text;
}

}  // namespace
