#include "platform/system.h"

#include "fixture.h"
#include "platform/files.h"
#include "platform/shell.h"
#include "platform/window_state.h"
#include "runtime/text.h"

namespace {

class System : public contract::Test {
 protected:
  static int SecondOfDay() {
    const auto now = platform::Now();
    return (now.hour * 60 + now.minute) * 60 + now.second;
  }
  // Also over midnight.
  static int SecondsSince(int start) { return (SecondOfDay() - start + 86400) % 86400; }
};

TEST_F(System, VersionIsGivenIntoARecordOfTheFirstSizeOnly) {
  platform::OSVERSIONINFO version;
  ASSERT_TRUE(platform::GetVersionExA(version));
  EXPECT_EQ(version.dwPlatformId, platform::VER_PLATFORM_WIN32_NT);
  EXPECT_GE(version.dwMajorVersion, 5u);
  EXPECT_EQ(version.dwOSVersionInfoSize, 148u);
  version.dwOSVersionInfoSize = 100;
  EXPECT_FALSE(platform::GetVersionExA(version));
}

TEST_F(System, SleepLetsTheClockGoOn) {
  const int start = SecondOfDay();
  platform::Sleep(2100);
  EXPECT_GE(SecondsSince(start), 2);
  EXPECT_LE(SecondsSince(start), 4);
}

TEST_F(System, NegativeSleepDoesNotWait) {
  const int start = SecondOfDay();
  platform::Sleep(-1);
  platform::Sleep(-5000);
  EXPECT_LE(SecondsSince(start), 1);
}

TEST_F(System, NowIsADateOfOurDays) {
  const auto now = platform::Now();
  EXPECT_GE(now.year, 2006);
  EXPECT_LT(now.year, 2200);
  EXPECT_GE(now.month, 1);
  EXPECT_LE(now.month, 12);
  EXPECT_GE(now.day, 1);
  EXPECT_LE(now.day, 31);
}

TEST_F(System, FolderOfTheProgramExistsAndHasNoBackslashAtItsEnd) {
  const std::string folder = platform::ApplicationPath();
  EXPECT_TRUE(platform::FolderExists(folder));
  EXPECT_NE(folder.back(), '\\');
}

TEST_F(System, TwipsOfAPixelAtTheUsualResolution) { EXPECT_EQ(platform::TwipsPerPixelX(), 15.0); }

TEST_F(System, MissingProgramDoesNotStart) {
  EXPECT_EQ(platform::StartProgram(contract::MissingProgram(), platform::SW_SHOWNORMAL), 0u);
}

TEST_F(System, EmptyCommandDoesNotStart) { EXPECT_EQ(platform::StartProgram("", platform::SW_SHOWNORMAL), 0u); }

class SearchPath : public contract::Test {};

TEST_F(SearchPath, FindsAFileWithItsExtensionAndWithout) {
  contract::WriteWhole(contract::Path("mein tool.exe"), "");
  const auto found = platform::SearchPathA(contract::Path("mein tool.exe"), ".exe");
  EXPECT_TRUE(runtime::EqualIgnoringCase(found, contract::Path("mein tool.exe"))) << found;
  EXPECT_TRUE(runtime::EqualIgnoringCase(platform::SearchPathA(contract::Path("mein tool"), ".exe"), found));
  EXPECT_EQ(platform::SearchPathA(contract::Path("mein"), ".exe"), "");
  EXPECT_EQ(platform::SearchPathA(contract::Path("mein tool.com"), ".exe"), "");
}

TEST_F(SearchPath, FindsNoFolder) {
  platform::CreateDirectoryW(contract::Path("ordner"));
  EXPECT_EQ(platform::SearchPathA(contract::Path("ordner"), ".exe"), "");
  EXPECT_EQ(platform::SearchPathA("", ".exe"), "");
}

TEST_F(SearchPath, FindsABareNameInTheFoldersOfPath) {
  contract::WriteWhole(contract::Path("contract tool.exe"), "");
  EXPECT_EQ(platform::SearchPathA("contract tool", ".exe"), "");
  const std::string path = platform::GetEnvironmentVariableA("PATH");
  contract::SetVariable("PATH", path + ";" + contract::ScratchFolder());
  const auto found = platform::SearchPathA("contract tool", ".exe");
  contract::SetVariable("PATH", path);
  EXPECT_TRUE(runtime::EqualIgnoringCase(found, contract::Path("contract tool.exe"))) << found;
}

class RegisteredMessage : public contract::Test {};

TEST_F(RegisteredMessage, HasOneNumberForItsNameInAnyCase) {
  const auto number = platform::RegisterWindowMessageA("TaskbarCreated");
  EXPECT_GE(number, 0xC000u);
  EXPECT_LE(number, 0xFFFFu);
  EXPECT_EQ(platform::RegisterWindowMessageA("TASKBARCREATED"), number);
  EXPECT_NE(platform::RegisterWindowMessageA("ContractMessage"), number);
}

class HotKey : public contract::Test {
 protected:
  static constexpr std::uint32_t kKey = 121;  // F10
};

TEST_F(HotKey, CombinationBelongsToOneWindowUntilItIsGivenBack) {
  const auto first = contract::AddOwnWindow("erstes");
  const auto second = contract::AddOwnWindow("zweites");
  EXPECT_TRUE(platform::RegisterHotKey(first, 1, platform::MOD_ALT, kKey));
  EXPECT_FALSE(platform::RegisterHotKey(second, 1, platform::MOD_ALT, kKey));
  EXPECT_TRUE(platform::UnregisterHotKey(first, 1));
  EXPECT_FALSE(platform::UnregisterHotKey(first, 1));
  EXPECT_TRUE(platform::RegisterHotKey(second, 1, platform::MOD_ALT, kKey));
  EXPECT_TRUE(platform::UnregisterHotKey(second, 1));
}

TEST_F(HotKey, NotForADeadWindow) {
  const auto window = contract::AddOwnWindow("Fenster");
  contract::DestroyOwnWindow(window);
  EXPECT_FALSE(platform::RegisterHotKey(window, 1, platform::MOD_ALT, kKey));
}

class NotificationIcon : public contract::Test {};

TEST_F(NotificationIcon, IsAddedOnceChangedAndRemovedOnce) {
  platform::NOTIFYICONDATA record;
  record.hWnd = contract::AddOwnWindow("Fenster");
  record.uID = 1;
  record.uFlags = platform::NIF_MESSAGE | platform::NIF_TIP;
  record.uCallbackMessage = 512;
  EXPECT_FALSE(platform::Shell_NotifyIconA(platform::NIM_MODIFY, record));
  EXPECT_TRUE(platform::Shell_NotifyIconA(platform::NIM_ADD, record));
  EXPECT_FALSE(platform::Shell_NotifyIconA(platform::NIM_ADD, record));
  EXPECT_TRUE(platform::Shell_NotifyIconA(platform::NIM_MODIFY, record));
  EXPECT_TRUE(platform::Shell_NotifyIconA(platform::NIM_DELETE, record));
  EXPECT_FALSE(platform::Shell_NotifyIconA(platform::NIM_DELETE, record));
}

TEST_F(NotificationIcon, UnknownIconHasNoHandle) { EXPECT_EQ(platform::LoadIconA("ICONONE"), 0); }

}  // namespace
