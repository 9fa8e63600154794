// What the checker finds, and what it leaves alone. The lines of the table of findings are the first tests; here stand
// the places and the cases beside them.
#include "checker.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "places.h"
#include "runtime/code_page.h"
#include "verb_facts.h"

namespace {

using makcheck::Finding;
using makcheck::FindingId;
using makcheck::FindingKind;

std::string CodePage(std::u8string_view text) { return runtime::FromUtf8(std::string(text.begin(), text.end())); }

// Needs more than the macro: its bytes, a desktop file or settings.
bool NeedsMore(FindingId id) {
  return id <= FindingId::ByteOrderMark || id >= FindingId::UnknownWindow;
}

TEST(FindingTable, EachWrongExampleIsFoundAndNoRightOne) {
  for (const FindingKind& kind : makcheck::FindingKinds()) {
    if (NeedsMore(kind.id)) continue;
    SCOPED_TRACE(kind.name);
    const auto wrong = Found(CodePage(kind.wrong));
    EXPECT_TRUE(std::any_of(wrong.begin(), wrong.end(), [&](const Finding& f) { return f.id == kind.id; }));
    const auto right = Found(CodePage(kind.right));
    EXPECT_TRUE(right.empty()) << makcheck::MessageOf(right.front());
  }
}

TEST(FindingTable, NamesAreDifferentWords) {
  std::set<std::string_view> names;
  for (const FindingKind& kind : makcheck::FindingKinds()) {
    EXPECT_TRUE(names.insert(kind.name).second) << kind.name;
    EXPECT_EQ(std::string::npos, kind.name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-")) << kind.name;
    EXPECT_EQ(&kind, makcheck::FindKind(kind.name));
  }
  EXPECT_EQ(nullptr, makcheck::FindKind("no-such-finding"));
}

TEST(FindingTable, EachMessageIsFilledWhereItIsFound) {
  for (const FindingKind& kind : makcheck::FindingKinds())
    for (const Finding& finding : Found(CodePage(kind.wrong))) {
      const std::string message = makcheck::MessageOf(finding);
      for (const char* mark : {"%1", "%2", "%3"}) {
        if (message.find(mark) == std::string::npos) continue;
        EXPECT_TRUE(std::any_of(finding.values.begin(), finding.values.end(),
                                [&](const std::string& value) { return value.find(mark) != std::string::npos; }))
            << message;
      }
    }
}

// Applies the first fix of the first finding that has one, and so on until nothing is found or nothing can be mended.
std::string Mended(std::string macro) {
  for (int round = 0; round < 5; ++round) {
    const auto findings = Found(macro);
    const auto fixable =
        std::find_if(findings.begin(), findings.end(), [](const Finding& finding) { return !finding.fixes.empty(); });
    if (fixable == findings.end()) break;
    const makcheck::Fix& fix = fixable->fixes.front();
    const makcheck::Macro parsed(macro);
    std::string mended;
    for (std::size_t i = 0; i < parsed.Lines().size(); ++i) {
      std::string line(parsed.Lines()[i].raw);
      if (i == fix.line) line.replace(fix.span.start, fix.span.end - fix.span.start, fix.text);
      mended += line + "\n";
    }
    macro = mended;
  }
  return macro;
}

TEST(Fixes, MendTheLines) {
  EXPECT_EQ("BUTTONCLICK=1,a\n", Mended("BUTONCLICK=1,a"));
  EXPECT_EQ("MSG=Start\n", Mended("MSG(Start)"));
  EXPECT_EQ("MSG=Start\n", Mended("  MSG = Start"));
  EXPECT_EQ("MSG=Start\n", Mended("\t  MSG=Start"));
  EXPECT_EQ("MSG='Start'\n", Mended("MSG='Start"));
  EXPECT_EQ("MSG='a, b'\n", Mended("MSG=a, b"));
  EXPECT_EQ("REM // a\n", Mended("// a"));
  EXPECT_EQ("MSG=$DATE\n", Mended("MSG=$date"));
  EXPECT_EQ("MSG='$GDPDUPATH'\n", Mended("MSG='$GDPDUPFAD'"));
  EXPECT_EQ("MSG='$PATH'\n", Mended("MSG=$PATH"));
  EXPECT_EQ("COPYFILE=C:\\a,C:\\b\\\n", Mended("COPYFILE=C:\\a,C:\\b"));
  EXPECT_EQ("DIM x\nx=VALUE(1)\nMSG=x\n", Mended("DIM x\nX=VALUE(1)\nMSG=x"));
  EXPECT_EQ("DIM x\nx=VALUE(1)\nMSG=x\n", Mended("DIM x\nx=1\nMSG=x"));
  EXPECT_EQ("DIM x\nx=VALUE(1)\nMSG=x\n", Mended("DIM x\nx = VALUE(1)\nMSG=x"));
  EXPECT_EQ("GOTO=ENDE\nMARK=ende\n", Mended("GOTO=end\nMARK=ende"));
  EXPECT_EQ("WAIT=500\nCLOSEWINDOW=a,1\n", Mended("WAIT=500\nCLOSEWINDOW=a, 1"));
}

TEST(Shapes, TellThePlaceInTheFile) {
  EXPECT_EQ(List{"2:3 misspelled-verb"}, Places("MSG=a\n  BUTONCLICK=1,a"));
  EXPECT_EQ(List{"3:7 misspelled-verb"}, Places("DIM Text\r\nMSG=a\r\n Text=REDTEXT(1,a)"));
  EXPECT_EQ(List{"1:15 blank-in-argument"}, Places("CLOSEWINDOW=a, 1"));
  EXPECT_EQ(List{"1:16 blank-in-argument"}, Places("\tCLOSEWINDOW=a, 1"));
}

TEST(Shapes, KnowAVerbInAnyLettersAndInDoubleQuotes) {
  EXPECT_EQ(List{}, Places("msg=a"));
  EXPECT_EQ(List{}, Places("\"MSG\"=\"a\""));
  EXPECT_EQ(List{}, Places("If Vj\nend if"));
}

TEST(Shapes, LeaveEmptyLinesAndCommentsAlone) { EXPECT_EQ(List{}, Places("\n\n  \nREM a = b, 'c\nrem\n\tREM x\n")); }

TEST(Shapes, TakeAnUndeclaredNameForWhatItIs) {
  EXPECT_EQ(List{"1:1 undeclared-variable"}, Places("Jahr=VALUE(1)"));
  EXPECT_EQ(List{"1:1 undeclared-variable"}, Places("Jahr=VALUE(1)\nDIM Jahr"));
  EXPECT_EQ(List{"1:1 unknown-verb"}, Places("Blubberblase=5"));
}

TEST(Arguments, AnOpenQuoteIsToldAlone) { EXPECT_EQ(List{"1:13 open-quote"}, Places("BUTTONCLICK='2111,Export")); }

TEST(Arguments, AreNeededWhereTheVerbFailsWithoutThem) {
  EXPECT_EQ(List{"1:1 missing-argument"}, Places("SETCHECK=1,2242,Dialog,1"));
  EXPECT_EQ(List{}, Places("SETCHECK=1,2242,Dialog,1,2240"));
  EXPECT_EQ(List{"1:1 missing-argument"}, Places("SETOPTION=1,Dialog,1,,5"));
  EXPECT_EQ(List{}, Places("SETOPTION=1,Dialog,1,,5,ThunderRT6Frame"));
  EXPECT_EQ(List{"2:1 missing-argument"}, Places("DISPLAY=a\nWAITFORWINDOW=a,1,,Button"));
  EXPECT_EQ(List{}, Places("DISPLAY=a\nWAITFORWINDOW=a,1"));
  EXPECT_EQ(List{"1:1 missing-argument"}, Places("WAIT="));
}

TEST(Arguments, ThatOnlyARunKnowsAreNotJudged) {
  EXPECT_EQ(List{}, Places("DIM t\nt=READINI(a,b)\nWAIT=t"));
  EXPECT_EQ(List{}, Places("WAIT=$WJ"));
  EXPECT_EQ(List{"1:6 not-a-number"}, Places("WAIT=t"));
}

TEST(Arguments, OfACommandFitInto16Bits) {
  EXPECT_EQ(List{"1:13 id-too-large"}, Places("BUTTONCLICK=32768,a"));
  EXPECT_EQ(List{}, Places("BUTTONCLICK=32767,a"));
  EXPECT_EQ(List{}, Places("MENUCLICK=40000,a"));
}

TEST(Arguments, OfADestinationEndInABackslash) {
  EXPECT_EQ(List{"1:12 destination-not-a-folder"}, Places("COPYFILE=a,$TEMP"));
  EXPECT_EQ(List{}, Places("COPYFILE=a,$TEMP\\"));
  EXPECT_EQ(List{}, Places("DIM z\nz=READINI(a,b)\nCOPYFILE=a,z"));
}

TEST(Names, OfVariablesInsideALongerText) {
  const std::string declared = "DIM Jahr\nJahr=VALUE(1)\nMSG=Jahr\n";
  EXPECT_EQ(List{"4:14 variable-in-text"}, Places(declared + "DELETEFOLDER=C:\\Jahr\\x"));
  EXPECT_EQ(List{"4:5 variable-in-text"}, Places(declared + "MSG=Das Jahr ist Jahr"));
  EXPECT_EQ(List{}, Places(declared + "MSG=Das Jahr ist vorbei"));
  EXPECT_EQ(List{}, Places(declared + "MSG=Wirtschaftsjahr-Jahr"));
  EXPECT_EQ(List{}, Places(declared + "DELETEFOLDER=C:\\Jahre\\x"));
}

TEST(Flow, JumpsLeaveAConditionAndKeepALoop) {
  EXPECT_EQ(List{}, Places("IF VJ\nGOTO=m\nENDIF\nMSG=a\nMARK=m\nIF VJ\nMSG=b\nENDIF"));
  EXPECT_EQ(List{}, Places("DO\nIF VJ\nGOTO=m\nENDIF\nMSG=a\nMARK=m\nLOOP UNTIL MATRIX.EOF"));
  EXPECT_EQ(List{}, Places("DO\nIF VJ\nGOTO=m\nENDIF\nLOOP UNTIL MATRIX.EOF\nMARK=m\nDO\nLOOP UNTIL CSVFILE.EOF"));
}

TEST(Flow, KnowsWhatCannotRun) {
  EXPECT_EQ(List{"2:1 dead-line"}, Places("STOP\nMSG=a\nMSG=b"));
  EXPECT_EQ(List{"2:1 dead-line"}, Places("GOTO=m\nMSG=a\nMARK=m\nMSG=b"));
  EXPECT_EQ(List{}, Places("IF VJ\nSTOP\nENDIF\nMSG=a"));
  EXPECT_EQ(List{}, Places("RAISEERROR=a\nMSG=b"));  // "Weiter" goes on behind the failed line
  EXPECT_EQ(List{}, Places("DIM m\nm=READINI(a,b)\nGOTO=m\nMARK=a\nMSG=a"));
}

TEST(Flow, EndsOfBlocksNeedTheirBeginnings) {
  EXPECT_EQ(List{"3:1 nested-condition"}, Places("IF VJ\nMSG=a\nIF VJ\nENDIF"));
  EXPECT_EQ(List{"4:1 endif-without-if"}, Places("IF VJ\nMSG=a\nENDIF\nENDIF"));
  EXPECT_EQ((List{"2:1 nested-loop", "4:1 loop-end-without-do"}),
            Places("DO\nDO\nLOOP UNTIL MATRIX.EOF\nLOOP UNTIL CSVFILE.EOF"));
}

TEST(Checker, TellsTheEncoding) {
  EXPECT_EQ(FindingId::Utf8File, makcheck::CheckFile("MSG=\xC3\xA4").front().id);
  EXPECT_EQ(FindingId::ByteOrderMark, makcheck::CheckFile("\xEF\xBB\xBFMSG=a").front().id);
  EXPECT_EQ(FindingId::Utf16File, makcheck::CheckFile(std::string("M\0S\0G\0=\0a\0", 10)).front().id);
  EXPECT_TRUE(makcheck::CheckFile("MSG=\xE4").empty());
}

TEST(VerbFacts, CoverEveryVerb) {
  EXPECT_EQ(110u, basMain::Verbs().size());
  for (const basMain::Verb& verb : basMain::Verbs()) {
    EXPECT_EQ(&verb, makcheck::FindVerb(verb.word));
    EXPECT_NO_THROW(makcheck::ArgumentsOf(verb)) << verb.word;
  }
}

}  // namespace
