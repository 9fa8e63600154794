// Any operation can be told to fail.
#include <gtest/gtest.h>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/registry.h"
#include "platform/settings.h"
#include "platform/shell.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "platform/window_lookup.h"
#include "platform/window_state.h"
#include "runtime/fault.h"

namespace {

using platform::simulated::Fail;

class SimulatedFailures : public testing::Test {
 protected:
  void SetUp() override {
    platform::simulated::Reset();
    window = platform::simulated::AddWindow({.className = "Fenster", .text = "Titel"});
    platform::simulated::Activate(window);
  }

  template <class Statement>
  static bool IsDenied(Statement statement) {
    try {
      statement();
      return false;
    } catch (const runtime::Fault& fault) {
      return fault.number == runtime::FaultNumber::AccessDenied;
    }
  }

  std::int32_t window = 0;
};

TEST_F(SimulatedFailures, CountsDownAndThenSucceeds) {
  Fail("SetForegroundWindow", 2);
  EXPECT_FALSE(platform::SetForegroundWindow(window));
  EXPECT_FALSE(platform::SetForegroundWindow(window));
  EXPECT_TRUE(platform::SetForegroundWindow(window));
}

TEST_F(SimulatedFailures, MayBeginAfterSomeCallsThatWork) {
  Fail("SetForegroundWindow", 1, 2);
  EXPECT_TRUE(platform::SetForegroundWindow(window));
  EXPECT_TRUE(platform::SetForegroundWindow(window));
  EXPECT_FALSE(platform::SetForegroundWindow(window));
  EXPECT_TRUE(platform::SetForegroundWindow(window));
}

TEST_F(SimulatedFailures, LastsUntilItIsTakenBackOrTheDesktopIsFresh) {
  Fail("StartProgram");
  for (int i = 0; i < 5; ++i) EXPECT_EQ(platform::StartProgram("notepad", 1), 0u);
  Fail("StartProgram", 0);
  EXPECT_NE(platform::StartProgram("notepad", 1), 0u);
  Fail("StartProgram");
  platform::simulated::Reset();
  EXPECT_NE(platform::StartProgram("notepad", 1), 0u);
}

TEST_F(SimulatedFailures, LookupsFindNothing) {
  for (const char* operation : {"FindWindowA", "GetWindowTextA", "GetForegroundWindow", "SendMessageA", "PostMessageA"})
    Fail(operation);
  std::string text;
  EXPECT_EQ(platform::FindWindowA(nullptr, nullptr), 0);
  EXPECT_EQ(platform::GetWindowTextA(window, text, 50), 0);
  EXPECT_EQ(platform::GetForegroundWindow(), 0);
  EXPECT_EQ(platform::SendMessageA(window, platform::WM_SETTEXT, 0, "neu"), 0);
  EXPECT_FALSE(platform::PostMessageA(window, platform::WM_CLOSE, 0, 0));
  EXPECT_EQ(platform::simulated::At(window).text, "Titel");
}

TEST_F(SimulatedFailures, FilesRaiseAccessDenied) {
  const auto file = platform::OpenFile("a.txt", platform::FileMode::Append);
  for (const char* operation : {"OpenFile", "ReadFile", "WriteFile", "CloseFile", "FileSize", "FindFiles"})
    Fail(operation, 1);
  char byte = 0;
  EXPECT_TRUE(IsDenied([] { platform::OpenFile("a.txt", platform::FileMode::Read); }));
  EXPECT_TRUE(IsDenied([&] { platform::ReadFile(file, &byte, 1); }));
  EXPECT_TRUE(IsDenied([&] { platform::WriteFile(file, "x"); }));
  EXPECT_TRUE(IsDenied([&] { platform::CloseFile(file); }));
  EXPECT_TRUE(IsDenied([] { platform::FileSize("a.txt"); }));
  EXPECT_TRUE(IsDenied([] { platform::FindFiles("C:\\*"); }));
  EXPECT_NO_THROW(platform::CloseFile(file));
  Fail("MakeSureDirectoryPathExists");
  EXPECT_FALSE(platform::MakeSureDirectoryPathExists("C:\\"));
}

TEST_F(SimulatedFailures, SettingsAndRegistryReportTheirCodes) {
  Fail("WritePrivateProfileStringA");
  EXPECT_EQ(platform::WritePrivateProfileStringA("A", "B", "C", "C:\\QUMA\\x.ini"), 0);
  EXPECT_FALSE(platform::FileExists("C:\\QUMA\\x.ini"));
  Fail("RegCreateKeyA", 1);
  std::int32_t key = 0;
  EXPECT_NE(platform::RegCreateKeyA(platform::HKEY_LOCAL_MACHINE, "Software\\X", key), 0);
  EXPECT_EQ(key, 0);
  EXPECT_EQ(platform::RegCreateKeyA(platform::HKEY_LOCAL_MACHINE, "Software\\X", key), 0);
  Fail("RegSetValueExA");
  EXPECT_NE(platform::RegSetValueExA(key, "V", platform::REG_SZ, "x"), 0);
  EXPECT_TRUE(platform::simulated::Registry().at("Software\\X").empty());
}

TEST_F(SimulatedFailures, ShellRefuses) {
  for (const char* operation : {"RegisterHotKey", "Shell_NotifyIconA", "GetVersionExA", "MessageBoxA"}) Fail(operation);
  platform::NOTIFYICONDATA record;
  record.hWnd = window;
  platform::OSVERSIONINFO version;
  EXPECT_FALSE(platform::RegisterHotKey(window, 1, platform::MOD_ALT, platform::VK_F12));
  EXPECT_FALSE(platform::Shell_NotifyIconA(platform::NIM_ADD, record));
  EXPECT_FALSE(platform::simulated::Tray());
  EXPECT_FALSE(platform::GetVersionExA(version));
  EXPECT_EQ(platform::MessageBoxA(0, "Text", "Titel", 0), 0);
  EXPECT_TRUE(platform::simulated::MessageBoxes().empty());
}

}  // namespace
