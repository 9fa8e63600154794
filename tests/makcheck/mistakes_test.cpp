// Mistakes as people make them, each with a macro beside it that is as it should be.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/texts.h"
#include "places.h"

namespace {

List Messages(const std::string& macro) {
  List messages;
  for (const makcheck::Finding& finding : Found(macro)) messages.push_back(makcheck::MessageOf(finding));
  return messages;
}

// The only finding has this as the text of its fix.
std::string FixOf(const std::string& macro) {
  const auto findings = Found(macro);
  if (findings.size() != 1 || findings[0].fixes.size() != 1) return "(none)";
  return findings[0].fixes[0].text;
}

TEST(Mistakes, AnEqualsThatIsMissing) {
  EXPECT_EQ(List{"1:1 missing-equals"}, Places("WAIT 500"));
  EXPECT_EQ("WAIT=500", FixOf("WAIT 500"));
  EXPECT_EQ("GOTO=Ende", FixOf("GOTO Ende\nMARK=Ende"));
  EXPECT_EQ("MSG=Hallo", FixOf("MSG:Hallo"));
  EXPECT_EQ("IF STRCOMP=a,b", FixOf("IF STRCOMP a,b\nMSG=x\nENDIF"));
  EXPECT_EQ("BUTTONCLICK=8,Mandant =,1", FixOf("BUTTONCLICK 8,Mandant =,1"));
  EXPECT_EQ(List{}, Places("WAIT=500"));
  EXPECT_EQ(List{"1:1 unknown-verb"}, Places("DO WHILE x\nLOOP UNTIL CSVFILE.EOF"));  // DO takes no arguments
}

TEST(Mistakes, AFormOfConditionThatThereIsNot) {
  EXPECT_EQ(List{"3:1 else-if"}, Places("IF VJ\nMSG=a\nELSEIF GDPDU=1\nENDIF"));
  EXPECT_EQ(List{"3:1 else-if"}, Places("IF VJ\nMSG=a\nELSE IF GDPDU=1\nENDIF"));
  EXPECT_EQ(List{}, Places("IF VJ\nMSG=a\nELSE\nMSG=b\nENDIF"));
  EXPECT_EQ(List{"1:1 unknown-verb"}, Places("IF NOT STRCOMP=a,b\nMSG=a\nENDIF"));  // IF STRCOMP is its opposite
  EXPECT_EQ("IF STRCOMP=x,5", FixOf("DIM x\nx=VALUE(5)\nIF x=5\nMSG=x\nENDIF"));
  EXPECT_EQ("IF STRCOMP=$WJ,2005", FixOf("IF $WJ=2005\nMSG=a\nENDIF"));
}

TEST(Mistakes, AMisspelledEndOrBeginningIsToldAlone) {
  EXPECT_EQ(List{"1:1 misspelled-verb"}, Places("IFBUTTONCLICK=8,Export\nENDIF"));
  EXPECT_EQ(List{"3:1 misspelled-verb"}, Places("IF VJ\nMSG=a\nEND-IF"));
  EXPECT_EQ(List{"3:1 unknown-loop-end"}, Places("DO\nMSG=a\nLOOP"));
  EXPECT_EQ(List{"2:1 misspelled-verb"}, Places("DO\nLOOP UNTIL CSVFILE.EFO"));
  EXPECT_EQ((List{"1:1 misspelled-verb", "2:1 endif-without-if"}), Places("Ende:\nENDIF"));  // "Ende:" is no end of an IF
}

TEST(Mistakes, ALoopEndThatSaysTooLittle) {
  EXPECT_EQ(List{"3:1 unknown-loop-end"}, Places("DO\nMSG=a\nLOOP UNTIL EOF"));
  EXPECT_EQ(List{"1:1 misspelled-verb"}, Places("LOOP UNTIL CONT"));
}

TEST(Mistakes, ALoopEndInsideAConditionOfItsLoop) {
  EXPECT_EQ(List{"4:1 loop-end-in-condition"}, Places("DO\nIF MATRIX.CHECKED\nMSG=a\nLOOP UNTIL MATRIX.EOF\nENDIF"));
  EXPECT_EQ(List{}, Places("DO\nIF MATRIX.CHECKED\nMSG=a\nENDIF\nLOOP UNTIL MATRIX.EOF"));
  EXPECT_EQ(List{}, Places("IF GDPDU=1\nDO\nMSG=a\nLOOP UNTIL MATRIX.EOF\nENDIF"));
}

TEST(Mistakes, ABlockThatIsNotClosedBeforeTheNextIsToldOnce) {
  EXPECT_EQ(List{"3:1 nested-condition"}, Places("IF VJ\nMSG=a\nIF GDPDU=1\nMSG=b\nENDIF"));
  EXPECT_EQ(List{"2:1 nested-loop"}, Places("DO\nDO\nLOOP UNTIL MATRIX.EOF"));
  EXPECT_EQ(List{"1:1 if-without-endif"}, Places("IF VJ\nMSG=a"));
}

TEST(Mistakes, ALabelOfAnotherLanguage) {
  EXPECT_EQ("MARK=Ende", FixOf("Ende:"));
  EXPECT_EQ("MARK=Ende", FixOf(":Ende"));
}

TEST(Mistakes, AVerbOfAnotherLanguage) {
  EXPECT_EQ("STOP", FixOf("EXIT"));
  EXPECT_EQ("WAIT", FixOf("PAUSE=500"));  // and not PARSE, which is nearer
  EXPECT_EQ(List{"2:3 unknown-verb"}, Places("DIM x\nx=LESE(5)\nMSG=x"));  // ELSE, though near, has no value
  EXPECT_EQ(List{"2:3 misspelled-verb"}, Places("DIM x\nx=REDTEXT(5,Export)\nMSG=x"));
}

TEST(Mistakes, AnAssignmentWithABlankForItsParentheses) {
  EXPECT_EQ("READTEXT(7,Export,1)", FixOf("DIM x\nx=READTEXT 7,Export,1\nMSG=x"));
  EXPECT_EQ("VALUE(ein Text)", FixOf("DIM x\nx=ein Text\nMSG=x"));
}

TEST(Mistakes, ABuiltInVariableIsNotDeclared) {
  EXPECT_EQ(List{"1:1 unknown-verb"}, Places("$WJ=VALUE(1)"));
  EXPECT_EQ(List{"1:1 undeclared-variable"}, Places("WJ=VALUE(1)"));
}

TEST(Mistakes, AnArgumentThatIsAVariableInOtherLetters) {
  const std::string macro = "DIM Jahr\nJahr=VALUE(2005)\nMSG=Jahr\n";
  EXPECT_EQ(List{"4:5 argument-case"}, Places(macro + "MSG=jahr"));
  EXPECT_EQ(List{}, Places(macro + "MSG='jahr'"));
  EXPECT_EQ(List{}, Places("DIM button\nbutton=VALUE(8)\nBUTTONCLICK=button,Export,1,,Button"));  // a class
  EXPECT_EQ(List{}, Places(macro + "DIM jahr\njahr=VALUE(1)\nMSG=jahr"));
}

TEST(Mistakes, KeysThatCannotBeRead) {
  EXPECT_EQ(List{"2:9 unknown-keys"}, Places("SETFOCUS=a\nSENDKEY={TABB}"));
  EXPECT_EQ(List{"1:10 unknown-keys"}, Places("SENDKEY2={TAB,7,Export,Edit"));
  EXPECT_EQ(List{}, Places("SETFOCUS=a\nSENDKEY=^a+(ab){TAB 3}{}}~"));
  EXPECT_EQ(List{}, Places("SETFOCUS=a\nSENDKEY={Space}"));
  EXPECT_EQ(List{"2:9 unknown-keys"}, Places("SETFOCUS=a\nSENDKEY=a{SPACE}"));  // a blank only as the whole text
  EXPECT_EQ(List{}, Places("SETFOCUS=a\nSENDKEY=$WJ{"));  // only a run knows what it is
}

TEST(Mistakes, TheMainWindowWhereItIsNotKnown) {
  EXPECT_EQ(List{"1:15 main-window-word"}, Places("MENUCLICK=101,%mainwindow%"));
  EXPECT_EQ(List{"1:13 main-window-word"}, Places("CLOSEWINDOW=%MAINWINDOW%"));
  EXPECT_EQ(List{}, Places("MENUCLICK=101,%MAINWINDOW%"));
  EXPECT_EQ(List{}, Places("IF MENUCLICK=101,%MAINWINDOW%\nMSG=a\nENDIF"));
}

TEST(Mistakes, AWordForACheckMark) {
  EXPECT_EQ(List{"1:10 doubtful-word"}, Places("SETCHECK=TRUE,7,Export,1,5"));
  EXPECT_EQ(List{}, Places("SETCHECK=1,7,Export,1,5\nSETCHECK=0,7,Export,1,5"));
}

TEST(Mistakes, AnIdBelowWhatACommandCarries) {
  EXPECT_EQ(List{"1:13 id-too-large"}, Places("BUTTONCLICK=-32769,Export"));
  EXPECT_EQ(List{}, Places("BUTTONCLICK=-32768,Export"));
}

TEST(Mistakes, AFolderWhereAFileIsWaitedFor) {
  const std::string status = "DISPLAY=a\nDIM Ordner\nOrdner=CREATEDIR(C:\\x)\n";
  EXPECT_EQ(List{"4:13 wait-folder"}, Places(status + "WAITFORFILE=$TERUPATH\\Daten\nMSG=Ordner"));
  EXPECT_EQ(List{"4:13 wait-folder"}, Places(status + "WAITFORFILE=Ordner"));
  EXPECT_EQ(List{"4:13 wait-folder"}, Places(status + "WAITFORFILE=C:\\Daten\\\nMSG=Ordner"));
  EXPECT_EQ(List{"4:13 wait-folder"}, Places(status + "WAITFORFILE='$GDPDUPATH'\nMSG=Ordner"));
  EXPECT_EQ(List{}, Places(status + "WAITFORFILE=$TERUPATH\\Daten\\a.csv\nMSG=Ordner"));
  EXPECT_EQ(List{}, Places(status + "WAITFORFILE=C:\\Daten\\*.csv\nMSG=Ordner"));
  EXPECT_EQ(List{}, Places(status + "WAITFORFILE=$CTLPATH\nMSG=Ordner"));
}

TEST(Mistakes, ABlankAtAMarkIsToldOnce) {
  EXPECT_EQ(List{"1:6 blank-at-equals"}, Places("GOTO= Ende\nMARK=Ende"));
  EXPECT_EQ(List{"2:6 blank-at-equals"}, Places("GOTO=Ende\nMARK= Ende"));
}

TEST(Mistakes, AreToldInGermanAsAWhole) {
  const tools::Language before = tools::language;
  tools::language = tools::Language::German;
  const auto messages = Messages("BUTTONCLICK=Start\nSETCHECK=1,7,Export,1\nOPENCSV=a.csv,;,1");
  ASSERT_EQ(4u, messages.size());
  EXPECT_EQ("BUTTONCLICK braucht das Argument 2: Fenster", messages[0]);
  EXPECT_EQ("SETCHECK braucht das Argument 5: Rahmenkennung oder Text des Steuerelements", messages[2]);
  tools::language = tools::Language::English;
  EXPECT_EQ("BUTTONCLICK needs argument 1: id", Messages("BUTTONCLICK=,Export").front());
  tools::language = before;
}

TEST(Mistakes, ThousandsOfMissingMarksAreAllTold) {
  std::string macro;
  for (int i = 0; i < 2000; ++i) macro += "GOTO=fehlt" + std::to_string(i) + "x\nMARK=marke" + std::to_string(i) + "\n";
  EXPECT_EQ(2000u, Places(macro).size());
}

}  // namespace
