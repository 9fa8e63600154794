// Hot keys, notification area, dialogs and programs of the simulated desktop.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstring>

#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/input.h"
#include "platform/messages.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "platform/window_lookup.h"
#include "platform/window_state.h"
#include "support/system.h"

namespace {

using platform::simulated::At;

class SimulatedShell : public testing::Test {
 protected:
  void SetUp() override {
    platform::simulated::Reset();
    window = platform::simulated::AddWindow({.className = "Eigen", .process = platform::simulated::kOwnProcess});
  }

  void TearDown() override { support::ExpectNoUnaskedAnswers(); }

  platform::NOTIFYICONDATA Record(const char* icon, const char* tip) {
    platform::NOTIFYICONDATA record;
    record.hWnd = window;
    record.uID = 1;
    record.uFlags = platform::NIF_MESSAGE | platform::NIF_ICON | platform::NIF_TIP;
    record.uCallbackMessage = platform::WM_MOUSEMOVE;
    record.hIcon = platform::LoadIconA(icon);
    std::strncpy(record.szTip, tip, sizeof record.szTip - 1);
    return record;
  }

  std::int32_t window = 0;
};

using SimulatedHotKey = SimulatedShell;

TEST_F(SimulatedHotKey, PressIsPostedToTheWindowThatRegisteredIt) {
  ASSERT_TRUE(platform::RegisterHotKey(window, 9, platform::MOD_ALT, platform::VK_F12));
  EXPECT_TRUE(platform::simulated::HotKeyRegistered(platform::MOD_ALT, platform::VK_F12));
  platform::simulated::PressHotKey(platform::MOD_ALT, platform::VK_F12);
  platform::simulated::PressHotKey(platform::MOD_ALT, 65);
  EXPECT_TRUE(At(window).received.empty());
  platform::simulated::HandleOwnMessages();
  ASSERT_EQ(At(window).received.size(), 1u);
  EXPECT_EQ(At(window).received[0].number, platform::WM_HOTKEY);
  EXPECT_EQ(At(window).received[0].wParam, 9);
  EXPECT_EQ(At(window).received[0].lParam, 123 * 65536 + 1);
}

TEST_F(SimulatedHotKey, AnotherProgramsCombinationIsRefused) {
  platform::simulated::OccupyHotKey(platform::MOD_ALT, platform::VK_F12);
  EXPECT_FALSE(platform::RegisterHotKey(window, 1, platform::MOD_ALT, platform::VK_F12));
  EXPECT_FALSE(platform::simulated::HotKeyRegistered(platform::MOD_ALT, platform::VK_F12));
  platform::simulated::PressHotKey(platform::MOD_ALT, platform::VK_F12);
  platform::simulated::HandleOwnMessages();
  EXPECT_TRUE(At(window).received.empty());
}

TEST_F(SimulatedHotKey, ForgottenRegistrationOutlivesTheWindow) {
  platform::RegisterHotKey(window, 1, platform::MOD_ALT, platform::VK_F12);
  platform::simulated::DestroyWindow(window);
  EXPECT_TRUE(platform::simulated::HotKeyRegistered(platform::MOD_ALT, platform::VK_F12));
  platform::UnregisterHotKey(window, 1);
  EXPECT_FALSE(platform::simulated::HotKeyRegistered(platform::MOD_ALT, platform::VK_F12));
}

using SimulatedTray = SimulatedShell;

TEST_F(SimulatedTray, ShowsTheIconAndKeepsAllCalls) {
  EXPECT_FALSE(platform::simulated::Tray());
  platform::Shell_NotifyIconA(platform::NIM_ADD, Record("ICOQUM", "Tipp"));
  ASSERT_TRUE(platform::simulated::Tray());
  EXPECT_EQ(platform::simulated::Tray()->icon, "ICOQUM");
  platform::Shell_NotifyIconA(platform::NIM_MODIFY, Record("ICOEXP", "anders"));
  EXPECT_EQ(platform::simulated::Tray()->icon, "ICOEXP");
  EXPECT_STREQ(platform::simulated::Tray()->record.szTip, "anders");
  platform::Shell_NotifyIconA(platform::NIM_DELETE, Record("ICOEXP", ""));
  EXPECT_FALSE(platform::simulated::Tray());
  const auto& calls = platform::simulated::TrayCalls();
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[1].message, platform::NIM_MODIFY);
  EXPECT_EQ(calls[1].icon.icon, "ICOEXP");
}

TEST_F(SimulatedTray, ChangesOnlyWhatTheFlagsName) {
  platform::Shell_NotifyIconA(platform::NIM_ADD, Record("ICOQUM", "Tipp"));
  auto record = Record("ICOERR", "anders");
  record.uFlags = platform::NIF_TIP;
  platform::Shell_NotifyIconA(platform::NIM_MODIFY, record);
  EXPECT_EQ(platform::simulated::Tray()->icon, "ICOQUM");
  EXPECT_STREQ(platform::simulated::Tray()->record.szTip, "anders");
}

TEST_F(SimulatedTray, RecordOfAnotherSizeIsRefused) {
  auto record = Record("ICOQUM", "Tipp");
  record.cbSize = 504;
  EXPECT_FALSE(platform::Shell_NotifyIconA(platform::NIM_ADD, record));
  EXPECT_FALSE(platform::simulated::Tray());
}

TEST_F(SimulatedTray, MouseAtTheIconPostsTheCallbackMessage) {
  platform::simulated::MouseAtTray(platform::WM_RBUTTONUP);
  platform::Shell_NotifyIconA(platform::NIM_ADD, Record("ICOQUM", "Tipp"));
  platform::simulated::MouseAtTray(platform::WM_RBUTTONUP);
  platform::simulated::HandleOwnMessages();
  const auto& received = At(window).received;
  ASSERT_EQ(received.size(), 1u) << "without an icon there is nothing to click at";
  EXPECT_EQ(received[0].number, 512u);
  EXPECT_EQ(received[0].wParam, 1);
  EXPECT_EQ(received[0].lParam, 517);
}

TEST_F(SimulatedTray, IconTellsOfTheMouseOnlyWhenItWasAskedTo) {
  auto record = Record("ICOQUM", "Tipp");
  record.uFlags = platform::NIF_ICON;
  platform::Shell_NotifyIconA(platform::NIM_ADD, record);
  platform::simulated::MouseAtTray(platform::WM_RBUTTONUP);
  record.uFlags = platform::NIF_MESSAGE;
  platform::Shell_NotifyIconA(platform::NIM_MODIFY, record);
  platform::simulated::HandleOwnMessages();
  EXPECT_TRUE(At(window).received.empty());
  platform::simulated::MouseAtTray(platform::WM_RBUTTONUP);
  platform::simulated::HandleOwnMessages();
  EXPECT_EQ(At(window).received.size(), 1u);
}

using SimulatedDialogs = SimulatedShell;

TEST_F(SimulatedDialogs, MessageBoxIsAWindowWhileItIsUp) {
  const auto target = platform::simulated::AddWindow({.className = "Ziel"});
  platform::simulated::Activate(target);
  bool seen = false;
  platform::simulated::WhileMessageBox([&](const platform::simulated::ShownBox& box) {
    seen = true;
    EXPECT_EQ(box.text, "Der Text");
    const auto found = platform::FindWindowA("#32770", "Der Titel");
    EXPECT_NE(found, 0);
    EXPECT_EQ(platform::GetForegroundWindow(), found);
    EXPECT_FALSE(At(window).enabled) << "the program's own windows wait for it";
    EXPECT_TRUE(At(target).enabled);
  });
  EXPECT_EQ(platform::MessageBoxA(0, "Der Text", "Der Titel", platform::MB_ICONSTOP), platform::IDOK);
  EXPECT_TRUE(seen);
  EXPECT_EQ(platform::FindWindowA("#32770", nullptr), 0);
  EXPECT_TRUE(At(window).enabled);
  EXPECT_EQ(platform::GetForegroundWindow(), target);
  ASSERT_EQ(platform::simulated::MessageBoxes().size(), 1u);
  EXPECT_EQ(platform::simulated::MessageBoxes()[0].caption, "Der Titel");
  EXPECT_EQ(platform::simulated::MessageBoxes()[0].type, 16u);
}

TEST_F(SimulatedDialogs, TellOfAnswersThatNobodyAskedFor) {
  using Answers = std::vector<std::string>;
  platform::simulated::WhileMessageBox([](const auto&) {});
  platform::simulated::AnswerFileDialog("C:\\eins.txt");
  EXPECT_EQ(platform::simulated::UnaskedAnswers(), (Answers{"C:\\eins.txt", "message box"}));
  EXPECT_NONFATAL_FAILURE(support::ExpectNoUnaskedAnswers(), "message box");
  platform::MessageBoxA(0, "Text", "Titel", 0);
  EXPECT_EQ(platform::simulated::UnaskedAnswers(), Answers{"C:\\eins.txt"});
  platform::OPENFILENAME record;
  platform::GetSaveFileNameA(record);
  EXPECT_EQ(platform::simulated::UnaskedAnswers(), Answers{});
}

TEST_F(SimulatedDialogs, MessageBoxHandlesWhatIsPosted) {
  platform::PostMessageA(window, 1024, 0, 0);
  platform::MessageBoxA(0, "Text", "Titel", 0);
  EXPECT_EQ(At(window).received.size(), 1u);
}

TEST_F(SimulatedDialogs, UserCancelsAFileDialogUnlessHeIsToldAPath) {
  platform::OPENFILENAME record;
  record.lpstrFile = std::string(256, '\0');
  record.lpstrTitle = "Verzeichnis";
  EXPECT_FALSE(platform::GetOpenFileNameA(record));
  platform::simulated::AnswerFileDialog("C:\\Daten\\TeRu.exe");
  EXPECT_TRUE(platform::GetSaveFileNameA(record));
  EXPECT_EQ(record.lpstrFile.size(), 256u);
  EXPECT_STREQ(record.lpstrFile.c_str(), "C:\\Daten\\TeRu.exe");
  ASSERT_EQ(platform::simulated::FileDialogs().size(), 2u);
  EXPECT_EQ(platform::simulated::FileDialogs()[0].lpstrTitle, "Verzeichnis");
}

TEST_F(SimulatedDialogs, FileThatMustExistIsNotTakenOtherwise) {
  platform::OPENFILENAME record;
  record.lpstrFile = std::string(256, '\0');
  record.Flags = platform::OFN_FILEMUSTEXIST;
  platform::simulated::AnswerFileDialog("C:\\fehlt.txt");
  EXPECT_FALSE(platform::GetOpenFileNameA(record));
  platform::simulated::PutFile("C:\\da.txt", "");
  platform::simulated::AnswerFileDialog("C:\\da.txt");
  EXPECT_TRUE(platform::GetOpenFileNameA(record));
}

TEST_F(SimulatedDialogs, DefaultExtensionIsAddedToAnotherName) {
  platform::OPENFILENAME record;
  record.lpstrFile = std::string(256, '\0');
  record.lpstrDefExt = "csv";
  platform::simulated::AnswerFileDialog("C:\\Ordner.alt\\Liste");
  EXPECT_TRUE(platform::GetSaveFileNameA(record));
  EXPECT_STREQ(record.lpstrFile.c_str(), "C:\\Ordner.alt\\Liste.csv");
  platform::simulated::AnswerFileDialog("C:\\Liste.txt");
  EXPECT_TRUE(platform::GetSaveFileNameA(record));
  EXPECT_STREQ(record.lpstrFile.c_str(), "C:\\Liste.txt");
}

TEST_F(SimulatedDialogs, PathThatDoesNotFitTheBufferFails) {
  platform::OPENFILENAME record;
  record.lpstrFile = std::string(8, '\0');
  platform::simulated::AnswerFileDialog("C:\\a.txt");
  EXPECT_FALSE(platform::GetSaveFileNameA(record));
}

TEST_F(SimulatedDialogs, ChosenFileMovesTheCurrentFolder) {
  platform::OPENFILENAME record;
  record.lpstrFile = std::string(256, '\0');
  EXPECT_EQ(platform::CurrentDirectory(), "C:\\QUMA");
  platform::simulated::AnswerFileDialog("C:\\Daten\\a.txt");
  platform::GetSaveFileNameA(record);
  EXPECT_EQ(platform::CurrentDirectory(), "C:\\Daten");
  platform::simulated::AnswerFileDialog("C:\\a.txt");
  platform::GetSaveFileNameA(record);
  EXPECT_EQ(platform::CurrentDirectory(), "C:\\");
}

TEST_F(SimulatedShell, ProgramsAreStartedUnlessTheyAreMissing) {
  platform::simulated::SetMissingProgram("fehlt.exe");
  EXPECT_EQ(platform::StartProgram("fehlt.exe", 1), 0u);
  const auto first = platform::StartProgram("notepad.exe a.txt", 1);
  const auto second = platform::StartProgram("calc.exe", 3);
  EXPECT_NE(first, 0u);
  EXPECT_NE(first, second);
  EXPECT_EQ(platform::simulated::StartedPrograms(),
            (std::vector<platform::simulated::StartedProgram>{{"notepad.exe a.txt", 1}, {"calc.exe", 3}}));
}

TEST_F(SimulatedShell, EndOfTheProgramIsNoFault) {
  EXPECT_THROW(platform::EndProgram(), platform::simulated::ProgramEnded);
}

TEST_F(SimulatedShell, IconsOfTheProgramAreKnown) {
  for (const char* icon : {"ICOQUM", "ICOEXP", "ICOERR", "ICOQST"}) EXPECT_NE(platform::LoadIconA(icon), 0) << icon;
  EXPECT_NE(platform::LoadIconA("ICOQUM"), platform::LoadIconA("ICOEXP"));
}

TEST_F(SimulatedShell, InputIsLoggedInItsOrder) {
  platform::BlockInput(true);
  platform::SetCursorPos(10, -20);
  platform::mouse_event(platform::MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
  platform::SetForegroundWindow(window);
  platform::BlockInput(false);
  EXPECT_EQ(platform::simulated::InputLog(),
            (std::vector<std::string>{"BlockInput 1", "SetCursorPos 10 -20", "mouse_event 2 0 0 0 0",
                                      "SetForegroundWindow " + std::to_string(window), "BlockInput 0"}));
}

TEST_F(SimulatedShell, EitherWindowsFamilyCanBeChosen) {
  platform::OSVERSIONINFO version;
  ASSERT_TRUE(platform::GetVersionExA(version));
  EXPECT_EQ(version.dwPlatformId, platform::VER_PLATFORM_WIN32_NT);
  EXPECT_EQ(version.dwMajorVersion, 5u);
  EXPECT_EQ(version.dwMinorVersion, 1u);
  platform::simulated::SetVersion(platform::VER_PLATFORM_WIN32_WINDOWS, 4, 10);
  ASSERT_TRUE(platform::GetVersionExA(version));
  EXPECT_EQ(version.dwPlatformId, platform::VER_PLATFORM_WIN32_WINDOWS);
  EXPECT_EQ(version.dwMajorVersion, 4u);
  EXPECT_EQ(version.dwMinorVersion, 10u);
}

TEST_F(SimulatedShell, ClipboardHoldsTheTextThatIsPutThere) {
  EXPECT_FALSE(platform::IsClipboardFormatAvailable(platform::CF_TEXT));
  platform::simulated::Clipboard() = "Text";
  EXPECT_TRUE(platform::IsClipboardFormatAvailable(platform::CF_TEXT));
  EXPECT_FALSE(platform::IsClipboardFormatAvailable(2));
}

TEST_F(SimulatedShell, RegistryIsSeenFromBothSides) {
  platform::simulated::Registry()["Software\\TARVEN\\Setup"]["Teru"] = {platform::REG_SZ, std::string("C:\\T\0", 5)};
  std::int32_t key = 0;
  ASSERT_EQ(platform::RegOpenKeyA(platform::HKEY_LOCAL_MACHINE, "software\\tarven\\SETUP\\", key), 0);
  std::string bytes(5, ' ');
  std::uint32_t type = 0, size = 5;
  EXPECT_EQ(platform::RegQueryValueExA(key, "teru", type, bytes.data(), size), 0);
  EXPECT_STREQ(bytes.c_str(), "C:\\T");
  platform::RegSetValueExA(key, "TERU", platform::REG_SZ, std::string("D:\0", 3));
  EXPECT_EQ(platform::simulated::Registry()["Software\\TARVEN\\Setup"]["Teru"].bytes, std::string("D:\0", 3));
  ASSERT_EQ(platform::RegOpenKeyA(platform::HKEY_LOCAL_MACHINE, "Software", key), 0) << "it lies on the way";
  EXPECT_EQ(platform::RegQueryValueExA(key, "Teru", type, nullptr, size), 2);
}

}  // namespace
