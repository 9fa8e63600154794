// The verb "FORMATSTRING".
#include "environment/format_string.h"

#include "engine/run_loop.h"
#include "engine/state.h"
#include "platform/simulated/desktop.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace support;

class FormatStringTest : public SystemTest {};

TEST_F(FormatStringTest, FormatsADate) {
  EXPECT_EQ(FormatString("31.12.2003", "yyyy", "DATE"), "2003");
  ExpectLog({"FormatString: 2003"});
  EXPECT_FALSE(run.RunFailed);
  EXPECT_EQ(run.LastError, "");
}

TEST_F(FormatStringTest, FormatsANumber) {
  EXPECT_EQ(FormatString("1234567", "#,##0", "LONG"), "1.234.567");
  ExpectLog({"FormatString: 1.234.567"});
}

TEST_F(FormatStringTest, FormatsAText) {
  EXPECT_EQ(FormatString("42", "@@@@", "TEXT"), "  42");
  EXPECT_EQ(FormatString("Müller", ">", ""), "MÜLLER");
  ExpectLog({"FormatString:   42", "FormatString: MÜLLER"});
}

TEST_F(FormatStringTest, TheTypeMindsNoCase) {
  EXPECT_EQ(FormatString("7", "000", "long"), "007");
  EXPECT_EQ(FormatString("31.12.2003", "yyyy", "Date"), "2003");
  EXPECT_EQ(FormatString("abc", "000", "lOnG"), "");
}

TEST_F(FormatStringTest, ATypeWithBlanksIsAnother) { EXPECT_EQ(FormatString("abc", ">", " LONG"), "ABC"); }

TEST_F(FormatStringTest, WhatIsNoDateYieldsNothingAndIsNoFailure) {
  for (const char* value : {"", "abc", "31.02.2003", "4711"}) {
    EXPECT_EQ(FormatString(value, "yyyy", "DATE"), "");
    ExpectLog({"FormatString: Formatieren nicht möglich, da der Wert kein Datum ist.", "FormatString: "});
    EXPECT_FALSE(run.RunFailed);
    EXPECT_EQ(run.LastError, "");
    platform::simulated::PutFile(kProgram + "\\QUMAEXP.LOG", "");
  }
}

TEST_F(FormatStringTest, WhatIsNoNumberYieldsNothingAndIsNoFailure) {
  for (const char* value : {"", "abc", "12x"}) {
    EXPECT_EQ(FormatString(value, "0", "LONG"), "");
    ExpectLog({"FormatString: Formatieren nicht möglich, da der Wert nicht numerisch ist.", "FormatString: "});
    EXPECT_FALSE(run.RunFailed);
    EXPECT_EQ(run.LastError, "");
    platform::simulated::PutFile(kProgram + "\\QUMAEXP.LOG", "");
  }
}

TEST_F(FormatStringTest, ANumberIsRoundedToAWholeOneWithTiesToEven) {
  EXPECT_EQ(FormatString("2,5", "0.0", "LONG"), "2,0");
  EXPECT_EQ(FormatString("3,5", "0", "LONG"), "4");
  EXPECT_EQ(FormatString("-1,5", "0", "LONG"), "-2");
}

TEST_F(FormatStringTest, ANumberBeyond32BitsFails) {
  for (const char* value : {"2147483648", "-2147483649", "99999999999999999999"}) {
    run.RunFailed = false;
    run.LastError.clear();
    EXPECT_EQ(FormatString(value, "0", "LONG"), "");
    EXPECT_TRUE(run.RunFailed);
    EXPECT_EQ(run.LastError, "Fehler in Funktion FormatString:Überlauf");
  }
  ExpectLog({});
  EXPECT_EQ(FormatString("-2147483648", "0", "LONG"), "-2147483648");
}

TEST_F(FormatStringTest, ANumberThatIsNoDateFailsWithADateFormat) {
  EXPECT_EQ(FormatString("99999999", "yyyy", "LONG"), "");
  EXPECT_TRUE(run.RunFailed);
  EXPECT_EQ(run.LastError, "Fehler in Funktion FormatString:Überlauf");
}

TEST_F(FormatStringTest, ADateCountsItsWeeksAsTheSystemDoes) {
  EXPECT_EQ(FormatString("01.01.2005", "w ww", "DATE"), "6 53");  // a Saturday
}

TEST_F(FormatStringTest, ANumberAndATextCountWeeksFromSundayAndTheFirstOfJanuary) {
  EXPECT_EQ(FormatString("38353", "w ww", "LONG"), "7 1");
  EXPECT_EQ(FormatString("01.01.2005", "w ww", "TEXT"), "7 1");
}

TEST_F(FormatStringTest, ADayWithoutAYearIsOneOfThePresentYear) {
  EXPECT_EQ(FormatString("31.12.", "ddmmyyyy", "DATE"), "31122006");
  EXPECT_EQ(FormatString("31.12.", "ddmmyyyy", ""), "31122006");
}

TEST_F(FormatStringTest, TheEmptyFormatIsTheGeneralOne) {
  EXPECT_EQ(FormatString("1.1.04 9:30", "", "DATE"), "01.01.2004 09:30:00");
  EXPECT_EQ(FormatString("1.234", "", "LONG"), "1234");
  EXPECT_EQ(FormatString(" x ", "", "TEXT"), " x ");
}

// In a macro.

TEST_F(FormatStringTest, IsTheValueOfALine) {
  EXPECT_TRUE(RunLines({"DIM Tag", "Tag=FORMATSTRING(01.07.2004,dd\\.mm\\.yy,DATE)", "MSG=Tag",
                        "Tag=FORMATSTRING('1234567,4','#,##0.00',long)", "MSG=Tag"}));
  ExpectLog(Completed({"FormatString: 01.07.04", "MSG: 01.07.04", "FormatString: 1.234.567,00", "MSG: 1.234.567,00"}));
}

TEST_F(FormatStringTest, TheMacroGoesOnWithAnEmptyValue) {
  EXPECT_TRUE(RunLines({"DIM Tag", "Tag=FORMATSTRING(heute,yyyy,DATE)", "MSG=Tag"}));
  ExpectLog(
      Completed({"FormatString: Formatieren nicht möglich, da der Wert kein Datum ist.", "FormatString: ", "MSG: "}));
}

TEST_F(FormatStringTest, AFaultFailsTheRun) {
  EXPECT_FALSE(RunLines({"FORMATSTRING=3000000000,0,LONG", "MSG=nie"}));
  ExpectLog({"Fehler in Funktion FormatString:Überlauf"});
}

}  // namespace
