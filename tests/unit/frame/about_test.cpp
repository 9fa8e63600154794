// The about dialog and the system information tool that it starts.
#include "frame/frmAbout.h"

#include "forms/simulated/user.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"
#include "resources/texts.h"
#include "support/system.h"

namespace {

using namespace basMain;
using namespace platform::simulated;

constexpr char kToolKey[] = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr char kFolderKey[] = "SOFTWARE\\Microsoft\\Shared Tools Location";

class AboutTest : public support::SystemTest {
 protected:
  void SetText(const std::string& key, const std::string& name, const std::string& text) {
    Registry()[key][name] = {platform::REG_SZ, text + '\0'};
  }

  // Presses the button and yields what it started; empty for nothing.
  std::string Started() {
    frmAbout.Show();
    forms::simulated::Press(frmAbout.cmdSysInfo);
    return StartedPrograms().empty() ? "" : StartedPrograms().back().command;
  }

  void ExpectNotAvailable() {
    ASSERT_EQ(MessageBoxes().size(), 1u);
    EXPECT_EQ(MessageBoxes()[0].text, "Systeminformationen sind momentan nicht verfügbar");
  }
};

TEST_F(AboutTest, ItTellsTitleVersionAndNotice) {
  frmAbout.Show();
  EXPECT_EQ(frmAbout.picIcon.Icon(), "ICOQUM");
  EXPECT_EQ(frmAbout.lblTitle.Caption(), "TARVEN Datenexport");
  EXPECT_EQ(frmAbout.lblVersion.Caption(), "Version: " VERSION);
  EXPECT_EQ(frmAbout.lblDisclaimer.Caption(), resources::Text(resources::TextId::Notice));
  EXPECT_FALSE(frmAbout.lblDisclaimer.Caption().empty());
  EXPECT_EQ(frmAbout.cmdSysInfo.Caption(), "&Systeminfo...");
}

TEST_F(AboutTest, OkClosesIt) {
  frmAbout.Show();
  forms::simulated::Press(frmAbout.cmdOK);
  EXPECT_FALSE(frmAbout.Loaded());
}

TEST_F(AboutTest, TheToolOfTheRegistryIsStarted) {
  SetText(kToolKey, "PATH", "C:\\Info\\tool.exe");
  SetText(kFolderKey, "MSINFO", "C:\\Andere");
  PutFile("C:\\Info\\tool.exe", "");
  PutFile("C:\\Andere\\MSINFO32.EXE", "");
  EXPECT_NE(Started().find("C:\\Info\\tool.exe"), std::string::npos);
  EXPECT_TRUE(MessageBoxes().empty());
}

TEST_F(AboutTest, WithoutItsFileTheToolOfTheFolderIsStarted) {
  SetText(kToolKey, "PATH", "C:\\Info\\tool.exe");
  SetText(kFolderKey, "MSINFO", "C:\\Andere");
  PutFile("C:\\Andere\\MSINFO32.EXE", "");
  EXPECT_NE(Started().find("C:\\Andere\\MSINFO32.EXE"), std::string::npos);
}

TEST_F(AboutTest, WithoutAnyEntryAMessageTellsThatThereIsNone) {
  EXPECT_EQ(Started(), "");
  ExpectNotAvailable();
}

TEST_F(AboutTest, WithoutAnyEntryAToolInTheRootIsNone) {
  PutFile("C:\\MSINFO32.EXE", "");
  EXPECT_EQ(Started(), "");
  ExpectNotAvailable();
}

TEST_F(AboutTest, WithoutAnyFileAMessageTellsThatThereIsNone) {
  SetText(kToolKey, "PATH", "C:\\Info\\tool.exe");
  SetText(kFolderKey, "MSINFO", "C:\\Andere");
  EXPECT_EQ(Started(), "");
  ExpectNotAvailable();
}

TEST_F(AboutTest, AnEntryOfAnotherTypeIsNone) {
  Registry()[kToolKey]["PATH"] = {platform::REG_DWORD, std::string(4, '\1')};
  Registry()[kFolderKey]["MSINFO"] = {platform::REG_EXPAND_SZ, std::string("C:\\Andere\0", 10)};
  PutFile("C:\\Andere\\MSINFO32.EXE", "");
  EXPECT_EQ(Started(), "");
  ExpectNotAvailable();
}

}  // namespace
