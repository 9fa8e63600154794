#include "frame/frmMain.h"

#include <algorithm>
#include <cmath>

#include "environment/file_system.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/messages.h"
#include "platform/system.h"
#include "resources/texts.h"
#include "runtime/fault.h"
#include "runtime/memory_reserve.h"

namespace basMain {
namespace {

using runtime::Skip;

constexpr std::int32_t kHotKey = 1;
constexpr std::uint32_t kTrayIcon = 1;

// The window procedure that the form had before MainWindowProc.
platform::WNDPROC OldWindowProc = nullptr;

}  // namespace

MainForm frmMain;

MainForm::MainForm()
    : Form("frmMain", ""),
      mnuDatei{"mnuDatei",
               "Datei",
               {{"mnuProto", "Protokoll anzeigen", [this] { mnuProto_Click(); }},
                {"mnuInfo", "Info", [this] { mnuInfo_Click(); }},
                {"mnuNone", "-", nullptr},
                {"mnuExit", "Beenden", [this] { mnuExit_Click(); }}}},
      Timer1(*this, [this] { Timer1_Timer(); }) {}

void MainForm::Form_Load() {
  trayEvent_ = false;
  iconMissing_ = false;
  Skip([] { runtime::HoldMemoryReserve(); });
  FileSystemState.emplace();
  Skip([] { OpenLog(); });
  Skip([&] { Events.Start(); });  // asks its questions before the program can be triggered
  Skip([&] { icon_ = platform::LoadIconA("ICOQUM"); });
  Skip([&] { iconMissing_ = !platform::Shell_NotifyIconA(platform::NIM_ADD, TrayRecord()); });
  bool registered = false;
  Skip([&] { registered = platform::RegisterHotKey(hWnd(), kHotKey, platform::MOD_ALT, platform::VK_F12); });
  if (!registered) {
    platform::MessageBoxA(hWnd(), resources::Text(resources::TextId::HotKeyTaken), resources::kProgramTitle,
                          platform::MB_OK);
    // A process that just ends leaves its icon behind until the pointer passes over it.
    Skip([&] { platform::Shell_NotifyIconA(platform::NIM_DELETE, TrayRecord()); });
    platform::EndProgram();
  }
  Skip([&] { taskbarCreated_ = platform::RegisterWindowMessageA("TaskbarCreated"); });
  Skip([&] { OldWindowProc = platform::SetWindowLongA(hWnd(), platform::GWL_WNDPROC, MainWindowProc); });
}

platform::NOTIFYICONDATA MainForm::TrayRecord() const {
  platform::NOTIFYICONDATA record;
  record.hWnd = Window();
  record.uID = kTrayIcon;
  record.uFlags = platform::NIF_MESSAGE | platform::NIF_ICON | platform::NIF_TIP;
  record.uCallbackMessage = platform::WM_MOUSEMOVE;
  record.hIcon = icon_;
  const std::string tip = resources::kProgramTitle;
  tip.copy(record.szTip, sizeof record.szTip - 1);
  return record;
}

void MainForm::SwitchTray(std::int16_t state) {
  if (!Loaded()) return;  // no icon to switch: the macro runs without the program around it
  const char* const icons[] = {"ICOQUM", "ICOEXP", "ICOERR"};
  if (state >= 0 && state <= 2) Skip([&] { icon_ = platform::LoadIconA(icons[state]); });
  ShowIcon();
}

void MainForm::ShowIcon() {
  iconMissing_ = false;  // the answer of a shell that is busy can take a while, in which messages arrive
  bool shown = false;
  Skip([&] {
    shown = platform::Shell_NotifyIconA(platform::NIM_MODIFY, TrayRecord()) ||
            platform::Shell_NotifyIconA(platform::NIM_ADD, TrayRecord());
  });
  iconMissing_ = !shown;
}

void MainForm::KeepIcon(std::uint32_t message) {
  if (iconMissing_ || message == taskbarCreated_) ShowIcon();
}

void MainForm::Form_Activate() { Hide(); }

// The events of the notification icon arrive as mouse moves: X, in twips, is the number of the mouse message.
void MainForm::Form_MouseMove(double X) {
  if (trayEvent_) return;
  trayEvent_ = true;
  const auto message = static_cast<std::uint32_t>(std::lround(X / platform::TwipsPerPixelX()));
  if (message == platform::WM_RBUTTONUP) Skip([&] { forms::PopupMenu(*this, mnuDatei); });
  trayEvent_ = false;
}

void MainForm::Form_QueryUnload() {
  iconMissing_ = false;
  Skip([&] { platform::Shell_NotifyIconA(platform::NIM_DELETE, TrayRecord()); });
  log.LogStream.reset();
  FileSystemState.reset();
}

void MainForm::Hotkey() { Events.Press(); }

void MainForm::mnuProto_Click() {
  Skip([&] { Events.ShowLog(); });
}

void MainForm::mnuInfo_Click() {
  Skip([&] { Events.ShowInfo(); });
}

void MainForm::mnuExit_Click() {
  Events.Exit();
  Unload();
  platform::EndProgram();
}

void MainForm::Timer1_Timer() {
  Skip([] {
    if (platform::IsClipboardFormatAvailable(platform::CF_TEXT)) frame.ClipboardFilled = true;
  });
}

std::int32_t PLATFORM_CALLBACK MainWindowProc(std::int32_t hWnd, std::uint32_t uMsg, std::int32_t wParam,
                                              std::int32_t lParam) {
  if (uMsg == platform::WM_NCDESTROY) {
    platform::SetWindowLongA(hWnd, platform::GWL_WNDPROC, OldWindowProc);
    platform::UnregisterHotKey(hWnd, kHotKey);
  }
  if (uMsg == platform::WM_HOTKEY) Skip([] { frmMain.Hotkey(); });
  else frmMain.KeepIcon(uMsg);
  return platform::CallWindowProcA(OldWindowProc, hWnd, uMsg, wParam, lParam);
}

}  // namespace basMain
