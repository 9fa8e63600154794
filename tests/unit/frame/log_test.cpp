// The log and the form that shows it.
#include "frame/log.h"

#include "engine/state.h"
#include "environment/file_system.h"
#include "forms/simulated/user.h"
#include "frame/frmLog.h"
#include "frame/frmMain.h"
#include "frame/frmStatus.h"
#include "platform/files.h"
#include "platform/simulated/desktop.h"
#include "runtime/fault.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using namespace support;

using Lines = std::vector<std::string>;

const std::string kLogFile = kProgram + "\\QUMAEXP.LOG";

class LogTest : public SystemTest {};

TEST_F(LogTest, ALineIsExactlyTheTextAndALineEndInTheCodePage) {
  LogWrite("Übergröße €");
  LogWrite("");
  LogWrite(" mit Blanks ");
  EXPECT_EQ(GetFile(kLogFile),
            "\xDC"
            "bergr\xF6\xDF"
            "e \x80\r\n\r\n mit Blanks \r\n");
}

TEST_F(LogTest, EachLineIsInTheFileAtOnce) {
  LogWrite("eins");
  ExpectLog(Lines{"eins"});
  LogWrite("zwei");
  ExpectLog((Lines{"eins", "zwei"}));
}

TEST_F(LogTest, ALongLineIsNotCut) {
  const std::string text(100000, 'x');
  LogWrite(text);
  ExpectLog(Lines{text});
}

TEST_F(LogTest, WithoutAnOpenLogNothingIsWritten) {
  log = {};
  LogWrite("verloren");
  EXPECT_EQ(GetFile(kLogFile), "");
}

TEST_F(LogTest, ALineThatCannotBeWrittenIsPassedOver) {
  Fail("WriteFile", 1);
  LogWrite("verloren");
  LogWrite("danach");
  ExpectLog(Lines{"danach"});
}

TEST_F(LogTest, ALogThatCannotBeWrittenDoesNotStopARun) {
  Fail("WriteFile");
  EXPECT_TRUE(RunLines({"MSG=1", "DISPLAYSTATUS=2"}));
  EXPECT_EQ(GetFile(kLogFile), "");
  EXPECT_EQ(frmStatus.lblInfo.Caption(), kCompleted);
}

TEST_F(LogTest, OpenLogContinuesAnExistingFile) {
  LogWrite("eins");
  log = {};
  OpenLog();
  LogWrite("zwei");
  ExpectLog((Lines{"eins", "zwei"}));
}

TEST_F(LogTest, OpenLogMakesAMissingFile) {
  log = {};
  SetApplicationPath("C:\\Neu");
  OpenLog();
  LogWrite("eins");
  EXPECT_EQ(LinesOf("C:\\Neu\\QUMAEXP.LOG"), Lines{"eins"});
}

TEST_F(LogTest, AFolderInThePlaceOfTheLogIsAFaultOfOpenLog) {
  log = {};
  SetApplicationPath("C:\\Neu");
  PutFile("C:\\Neu\\QUMAEXP.LOG\\x", "");
  EXPECT_THROW(OpenLog(), runtime::Fault);
  LogWrite("verloren");
  EXPECT_FALSE(log.LogStream);
}

TEST_F(LogTest, WhatAnotherProgramHasAppendedStays) {
  LogWrite("eins");
  PutFile(kLogFile, GetFile(kLogFile) + "fremd\r\n");
  LogWrite("zwei");
  ExpectLog((Lines{"eins", "fremd", "zwei"}));
}

TEST_F(LogTest, TwoRunsLeaveTwoFramesAndTheLogGrows) {
  StartProgram();
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"MSG=1"});
  TargetWindow("TeRu");
  PressHotKey();
  PressHotKey();
  const Lines frame = Header("A.MAK") + Completed({"MSG: 1"});
  ExpectLog(frame + frame);
}

TEST_F(LogTest, AFailedRunHasNoClosingStarLine) {
  EXPECT_FALSE(RunLines({"MSG=1", "RAISEERROR=kaputt"}));
  ExpectLog((Lines{"MSG: 1", "kaputt"}));
}

TEST_F(LogTest, AStoppedRunTellsTheStop) {
  EXPECT_TRUE(RunLines({"STOP", "MSG=nie"}));
  ExpectLog((Lines{kStopped, kStars}));
}

// The form.

class LogFormTest : public LogTest {};

TEST_F(LogFormTest, ItShowsTheWholeLog) {
  LogWrite("früher");
  LogWrite("später");
  frmLog.Show();
  EXPECT_EQ(frmLog.title, "TARVEN Datenexport - Protokoll");
  EXPECT_EQ(At(frmLog.Window()).text, "TARVEN Datenexport - Protokoll");
  EXPECT_EQ(frmLog.txtProtokoll.Text(), "früher\r\nspäter\r\n");
}

TEST_F(LogFormTest, TheTextFillsTheForm) {
  EXPECT_EQ(forms::ControlsOf(frmLog.Layout()), std::vector<forms::Control*>{&frmLog.txtProtokoll});
  EXPECT_TRUE(frmLog.txtProtokoll.size.grows);
  EXPECT_TRUE(frmLog.style.resizable);
}

TEST_F(LogFormTest, ALogBeyondOneReadIsShownWhole) {
  std::string text;
  for (int i = 0; i < 20000; ++i) text += "Zeile " + std::to_string(i) + "\r\n";
  PutFile(kLogFile, text);
  frmLog.Show();
  EXPECT_EQ(frmLog.txtProtokoll.Text(), text);
}

TEST_F(LogFormTest, TheTextIsASnapshot) {
  LogWrite("eins");
  frmLog.Show();
  LogWrite("zwei");
  EXPECT_EQ(frmLog.txtProtokoll.Text(), "eins\r\n");
  ExpectLog((Lines{"eins", "zwei"}));
}

TEST_F(LogFormTest, OpenedAgainItShowsWhatWasAdded) {
  LogWrite("eins");
  frmLog.Show();
  frmLog.Unload();
  LogWrite("zwei");
  frmLog.Show();
  EXPECT_EQ(frmLog.txtProtokoll.Text(), "eins\r\nzwei\r\n");
}

TEST_F(LogFormTest, TheSecondStreamIsClosedAgain) {
  frmLog.Show();
  // A second handle on the file would be the one behind the next.
  const std::int32_t first = platform::OpenFile(kLogFile, platform::FileMode::Read);
  platform::CloseFile(first);
  EXPECT_THROW(platform::CloseFile(first - 4), runtime::Fault);
}

TEST_F(LogFormTest, WithoutALogItIsEmpty) {
  log = {};
  SetApplicationPath("C:\\Neu");
  frmLog.Show();
  EXPECT_TRUE(frmLog.Visible());
  EXPECT_EQ(frmLog.txtProtokoll.Text(), "");
}

TEST_F(LogFormTest, ALogThatCannotBeReadLeavesItEmpty) {
  LogWrite("eins");
  Fail("ReadFile");
  frmLog.Show();
  EXPECT_TRUE(frmLog.Visible());
  EXPECT_EQ(frmLog.txtProtokoll.Text(), "");
}

TEST_F(LogFormTest, WhileItIsOpenARunGoesOnWriting) {
  StartProgram();
  MacroEntry(1, "TeRu,A.MAK");
  Macro("A.MAK", {"MSG=1"});
  const std::int32_t target = TargetWindow("TeRu");
  LogWrite("vorher");
  std::string shown;
  forms::simulated::WhenModal([&](forms::Form& form) {
    Activate(target);
    PressHotKey();
    shown = frmLog.txtProtokoll.Text();
    forms::simulated::Close(form);
  });
  frmMain.mnuProto_Click();
  EXPECT_EQ(shown, "vorher\r\n");
  ExpectLog(Lines{"vorher"} + Header("A.MAK") + Completed({"MSG: 1"}));
}

}  // namespace
