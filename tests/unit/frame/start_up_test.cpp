// What the program does before the first press.
#include <algorithm>

#include "environment/file_system.h"
#include "frame/frmMain.h"
#include "frame/frmStatus.h"
#include "frame/log.h"
#include "platform/messages.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"
#include "runtime/fault.h"
#include "support/press.h"

namespace {

using namespace basMain;
using namespace platform::simulated;
using support::operator+;
using support::Log;

using Lines = std::vector<std::string>;

const std::string kLogFile = support::kProgram + "\\QUMAEXP.LOG";

class StartUpTest : public support::SystemTest {
 protected:
  StartUpTest() {
    log = {};
    FileSystemState.reset();
    support::InstallSuite();
    PutFile(kLogFile, "");
  }

  bool HotKeyIsOurs() { return HotKeyRegistered(platform::MOD_ALT, platform::VK_F12); }
};

TEST_F(StartUpTest, AnExistingLogIsContinued) {
  PutFile(kLogFile, "früher\r\n");
  frmMain.Load();
  support::ExpectLog(Lines{"früher"} + support::kDiscovery);
}

TEST_F(StartUpTest, AMissingLogIsMade) {
  support::Macro("QUMAEXP.LOG", {});
  SetApplicationPath("C:\\Neu");
  frmMain.Load();
  EXPECT_EQ(support::LinesOf("C:\\Neu\\QUMAEXP.LOG"), support::kDiscovery);
}

TEST_F(StartUpTest, TheDiscoveryRunsOnce) {
  frmMain.Load();
  support::ExpectLog(support::kDiscovery);
}

TEST_F(StartUpTest, TheDiscoveryAsksBeforeTheProgramCanBeTriggered) {
  Registry().clear();
  int boxes = 0;
  WhileMessageBox([&](const ShownBox&) {
    ++boxes;
    EXPECT_FALSE(HotKeyIsOurs());
    EXPECT_FALSE(Tray().has_value());
  });
  frmMain.Load();
  EXPECT_EQ(boxes, 2);
  EXPECT_TRUE(HotKeyIsOurs());
  EXPECT_TRUE(Tray().has_value());
}

TEST_F(StartUpTest, TheIconShowsTheIdleProgram) {
  frmMain.Load();
  ASSERT_EQ(TrayCalls().size(), 1u);
  EXPECT_EQ(TrayCalls()[0].message, platform::NIM_ADD);
  const platform::NOTIFYICONDATA& record = TrayCalls()[0].icon.record;
  EXPECT_EQ(record.cbSize, 88u);
  EXPECT_EQ(record.hWnd, frmMain.Window());
  EXPECT_EQ(record.uID, 1u);
  EXPECT_EQ(record.uFlags, 7u);
  EXPECT_EQ(record.uCallbackMessage, 512u);
  EXPECT_EQ(std::string(record.szTip, 19), std::string("TARVEN Datenexport\0", 19));
  EXPECT_EQ(support::ShownIcon(), "ICOQUM");
}

TEST_F(StartUpTest, TheHotKeyIsAltF12) {
  frmMain.Load();
  EXPECT_TRUE(HotKeyRegistered(1, 123));
  support::PressHotKey();
  const std::vector<Message>& received = At(frmMain.Window()).received;
  const auto press = std::ranges::find(received, platform::WM_HOTKEY, &Message::number);
  ASSERT_NE(press, received.end());
  EXPECT_EQ(press->wParam, 1);
}

TEST_F(StartUpTest, NothingIsShown) {
  frmMain.Load();
  EXPECT_FALSE(frmMain.Visible());
  EXPECT_FALSE(frmStatus.Loaded());
  EXPECT_TRUE(MessageBoxes().empty());
}

TEST_F(StartUpTest, ATakenHotKeyEndsTheProgramWithAMessage) {
  OccupyHotKey(1, 123);
  EXPECT_THROW(frmMain.Load(), ProgramEnded);
  ASSERT_EQ(MessageBoxes().size(), 1u);
  EXPECT_EQ(MessageBoxes()[0].text, "Fehler beim registrieren der Aktionstaste.");
  EXPECT_FALSE(Tray().has_value());
}

TEST_F(StartUpTest, AFailingRegistrationEndsTheProgramToo) {
  Fail("RegisterHotKey");
  EXPECT_THROW(frmMain.Load(), ProgramEnded);
  EXPECT_EQ(MessageBoxes().size(), 1u);
}

TEST_F(StartUpTest, AProgramBesideTheHotKeyIsNoReasonToEnd) {
  OccupyHotKey(1, 122);
  OccupyHotKey(2, 123);
  EXPECT_NO_THROW(frmMain.Load());
  EXPECT_TRUE(MessageBoxes().empty());
}

TEST_F(StartUpTest, WithoutALogTheProgramRunsWithoutOne) {
  Fail("OpenFile", 1);
  frmMain.Load();
  EXPECT_TRUE(HotKeyIsOurs());
  EXPECT_TRUE(MessageBoxes().empty());

  support::MacroEntry(1, "Ziel,ZIEL.MAK");
  support::Macro("ZIEL.MAK", {"MSG=x", "CREATEPROTOCOL=p.txt", "ADDPROTOCOL=fertig"});
  support::TargetWindow("Ziel");
  support::PressHotKey();
  EXPECT_EQ(support::LinesOf(support::kProgram + "\\p.txt"), Lines{"fertig"});
  EXPECT_EQ(frmStatus.lblInfo.Caption(), support::kCompleted);
  EXPECT_EQ(GetFile(kLogFile), "");
}

TEST_F(StartUpTest, AFailingIconStopsNothing) {
  Fail("Shell_NotifyIconA");
  frmMain.Load();
  EXPECT_TRUE(HotKeyIsOurs());
  EXPECT_FALSE(Tray().has_value());
}

TEST_F(StartUpTest, AFaultInTheDiscoveryStopsNothing) {
  Registry().clear();
  WhileMessageBox([](const ShownBox&) { throw runtime::Fault(runtime::FaultNumber::AccessDenied); });
  frmMain.Load();
  EXPECT_TRUE(HotKeyIsOurs());
  EXPECT_TRUE(Tray().has_value());
  support::ExpectLog(Lines{"Fehler in Funktion GetTeRuDestination:Zugriff verweigert"});
}

}  // namespace
