// Hot keys, notification area, icons, and the starting and ending of programs.
#include "platform/shell.h"

#include <algorithm>
#include <array>

#include "platform/files.h"
#include "platform/messages.h"
#include "platform/simulated/state.h"
#include "platform/system.h"
#include "runtime/text.h"

namespace platform {
namespace simulated {
namespace {

// The icons of the program's resources; a handle is the position behind kFirstIcon.
constexpr std::array kIcons = {"ICOQUM", "ICOEXP", "ICOERR", "ICOQST"};
constexpr std::int32_t kFirstIcon = 0x300;

std::string IconName(std::int32_t hIcon) {
  const std::int32_t position = hIcon - kFirstIcon;
  return position >= 0 && position < static_cast<std::int32_t>(kIcons.size())
             ? kIcons[static_cast<std::size_t>(position)]
             : "";
}

const HotKey* FindHotKey(std::uint32_t modifiers, std::uint32_t key) {
  const auto& hotKeys = TheDesktop().hotKeys;
  const auto found = std::find_if(hotKeys.begin(), hotKeys.end(),
                                  [=](const HotKey& h) { return h.modifiers == modifiers && h.key == key; });
  return found == hotKeys.end() ? nullptr : &*found;
}

bool SameIcon(const NOTIFYICONDATA& a, const NOTIFYICONDATA& b) { return a.hWnd == b.hWnd && a.uID == b.uID; }

// Takes over what the flags name.
void Update(TrayIcon& icon, const TrayIcon& with) {
  NOTIFYICONDATA& record = icon.record;
  record.uFlags |= with.record.uFlags;
  if ((with.record.uFlags & NIF_MESSAGE) != 0) record.uCallbackMessage = with.record.uCallbackMessage;
  if ((with.record.uFlags & NIF_TIP) != 0) std::copy_n(with.record.szTip, sizeof record.szTip, record.szTip);
  if ((with.record.uFlags & NIF_ICON) == 0) return;
  record.hIcon = with.record.hIcon;
  icon.icon = with.icon;
}

}  // namespace

void PressHotKey(std::uint32_t modifiers, std::uint32_t key) {
  const HotKey* hotKey = FindHotKey(modifiers, key);
  if (hotKey == nullptr || !Exists(hotKey->hWnd)) return;
  TheDesktop().posted.push_back(
      {hotKey->hWnd, {WM_HOTKEY, hotKey->id, static_cast<std::int32_t>(modifiers | key << 16)}});
}

bool HotKeyRegistered(std::uint32_t modifiers, std::uint32_t key) {
  const HotKey* hotKey = FindHotKey(modifiers, key);
  return hotKey != nullptr && hotKey->hWnd != 0;
}

void OccupyHotKey(std::uint32_t modifiers, std::uint32_t key) {
  TheDesktop().hotKeys.push_back({0, 0, modifiers, key});
}

const std::optional<TrayIcon>& Tray() { return TheDesktop().tray; }
const std::vector<TrayCall>& TrayCalls() { return TheDesktop().trayCalls; }

void RestartShell() {
  TheDesktop().tray.reset();
  const auto created = static_cast<std::uint32_t>(RegisterWindowMessageA("TaskbarCreated"));
  for (const std::int32_t hWnd : TheDesktop().topLevel) PostMessageA(hWnd, created, 0, 0);
}

void MouseAtTray(std::uint32_t message) {
  const auto& tray = Tray();
  if (!tray || (tray->record.uFlags & NIF_MESSAGE) == 0) return;
  TheDesktop().posted.push_back({tray->record.hWnd,
                                 {tray->record.uCallbackMessage, static_cast<std::int32_t>(tray->record.uID),
                                  static_cast<std::int32_t>(message)}});
}

const std::vector<StartedProgram>& StartedPrograms() { return TheDesktop().startedPrograms; }
void SetMissingProgram(const std::string& command) { TheDesktop().missingPrograms.push_back(command); }

}  // namespace simulated

using namespace simulated;

bool RegisterHotKey(std::int32_t hWnd, std::int32_t id, std::uint32_t fsModifiers, std::uint32_t vk) {
  if (!Exists(hWnd) || FindHotKey(fsModifiers, vk) != nullptr || Fails("RegisterHotKey")) return false;
  TheDesktop().hotKeys.push_back({hWnd, id, fsModifiers, vk});
  return true;
}

bool UnregisterHotKey(std::int32_t hWnd, std::int32_t id) {
  if (Fails("UnregisterHotKey")) return false;
  return std::erase_if(TheDesktop().hotKeys, [=](const HotKey& h) { return h.hWnd == hWnd && h.id == id; }) != 0;
}

bool Shell_NotifyIconA(std::uint32_t dwMessage, const NOTIFYICONDATA& lpData) {
  Desktop& desktop = TheDesktop();
  const TrayIcon icon{lpData, IconName(lpData.hIcon)};
  desktop.trayCalls.push_back({dwMessage, icon});
  if (lpData.cbSize != sizeof(NOTIFYICONDATA) || Fails("Shell_NotifyIconA")) return false;
  const bool present = desktop.tray && SameIcon(desktop.tray->record, lpData);
  switch (dwMessage) {
    case NIM_ADD:
      if (present || !Exists(lpData.hWnd)) return false;
      desktop.tray = icon;
      return true;
    case NIM_MODIFY:
      if (present) Update(*desktop.tray, icon);
      return present;
    case NIM_DELETE:
      if (present) desktop.tray.reset();
      return present;
    default:
      return false;
  }
}

std::int32_t LoadIconA(const std::string& name) {
  if (Fails("LoadIconA")) return 0;
  const auto found = std::find_if(kIcons.begin(), kIcons.end(),
                                  [&](const char* icon) { return runtime::EqualIgnoringCase(icon, name); });
  return found == kIcons.end() ? 0 : kFirstIcon + static_cast<std::int32_t>(found - kIcons.begin());
}

std::uint32_t RegisterWindowMessageA(const std::string& lpString) {
  constexpr std::uint32_t kFirst = 0xC000;
  auto& names = TheDesktop().messageNames;
  const auto name = std::ranges::find(names, runtime::ToUpper(lpString));
  const auto number = kFirst + static_cast<std::uint32_t>(name - names.begin());
  if (name == names.end()) names.push_back(runtime::ToUpper(lpString));
  return number;
}

std::string SearchPathA(const std::string& lpFileName, const std::string& lpExtension) {
  const std::string lastName = lpFileName.substr(lpFileName.find_last_of("\\/:") + 1);
  const std::string name = lpFileName + (runtime::Contains(lastName, ".") ? "" : lpExtension);
  if (lastName.empty()) return "";
  if (lastName.size() < lpFileName.size()) return FileExists(name) ? name : "";
  std::vector<std::string> folders = {ApplicationPath(), CurrentDirectory()};
  for (const std::string& folder : runtime::Split(GetEnvironmentVariableA("PATH"), ';')) folders.push_back(folder);
  for (const std::string& folder : folders)
    if (!folder.empty() && FileExists(folder + "\\" + name)) return folder + "\\" + name;
  return "";
}

std::uint32_t StartProgram(const std::string& command, std::uint32_t showStyle) {
  Desktop& desktop = TheDesktop();
  if (command.empty() || Fails("StartProgram") || std::ranges::count(desktop.missingPrograms, command) != 0) return 0;
  desktop.startedPrograms.push_back({command, showStyle});
  return desktop.nextProcess++;
}

void EndProgram() { throw ProgramEnded{}; }

}  // namespace platform
