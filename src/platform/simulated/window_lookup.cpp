#include "platform/window_lookup.h"

#include <algorithm>

#include "platform/class_names.h"
#include "platform/simulated/controls.h"
#include "platform/system.h"
#include "runtime/text.h"

namespace platform {
namespace simulated {
namespace {

// Edit fields and combo boxes keep their text themselves, so the system can't tell it to another process.
bool KeepsItsText(const Window& window) {
  return window.process != kOwnProcess &&
         (runtime::EqualIgnoringCase(window.className, "Edit") ||
          runtime::EqualIgnoringCase(window.className, kTextBoxClass) || IsComboBox(window));
}

std::string TextOf(const Window& window) { return KeepsItsText(window) ? "" : window.text; }

std::int32_t PutText(const std::string& text, std::string& target, std::int32_t nMaxCount) {
  target = nMaxCount <= 0 ? "" : text.substr(0, static_cast<std::size_t>(nMaxCount) - 1);
  return static_cast<std::int32_t>(target.size());
}

void Collect(const std::vector<std::int32_t>& children, std::vector<std::int32_t>& all) {
  for (const std::int32_t child : children) {
    all.push_back(child);
    Collect(At(child).children, all);
  }
}

}  // namespace
}  // namespace simulated

using namespace simulated;

std::int32_t FindWindowA(const char* lpClassName, const char* lpWindowName) {
  if (Fails("FindWindowA")) return 0;
  for (const std::int32_t hWnd : TheDesktop().topLevel) {
    const Window& window = At(hWnd);
    if (lpClassName != nullptr && !runtime::EqualIgnoringCase(window.className, lpClassName)) continue;
    if (lpWindowName != nullptr && !runtime::EqualIgnoringCase(window.text, lpWindowName)) continue;
    return hWnd;
  }
  return 0;
}

std::int32_t GetWindow(std::int32_t hWnd, std::uint32_t uCmd) {
  const Window* window = Find(hWnd);
  if (window == nullptr || Fails("GetWindow")) return 0;
  if (uCmd == GW_CHILD) return window->children.empty() ? 0 : window->children.front();
  if (uCmd != GW_HWNDNEXT) return 0;
  const auto& siblings = window->parent == 0 ? TheDesktop().topLevel : At(window->parent).children;
  const auto next = std::find(siblings.begin(), siblings.end(), hWnd) + 1;
  return next == siblings.end() ? 0 : *next;
}

std::int32_t GetWindowTextLengthA(std::int32_t hWnd) {
  const Window* window = Find(hWnd);
  if (window == nullptr || Fails("GetWindowTextLengthA")) return 0;
  return static_cast<std::int32_t>(TextOf(*window).size());
}

std::int32_t GetWindowTextA(std::int32_t hWnd, std::string& lpString, std::int32_t nMaxCount) {
  const Window* window = Find(hWnd);
  if (window == nullptr || Fails("GetWindowTextA")) return PutText("", lpString, nMaxCount);
  return PutText(TextOf(*window), lpString, nMaxCount);
}

std::int32_t GetClassNameA(std::int32_t hWnd, std::string& lpClassName, std::int32_t nMaxCount) {
  const Window* window = Find(hWnd);
  if (window == nullptr || Fails("GetClassNameA")) return PutText("", lpClassName, nMaxCount);
  return PutText(window->className, lpClassName, nMaxCount);
}

std::int32_t GetDlgCtrlID(std::int32_t hWnd) {
  const Window* window = Find(hWnd);
  return window == nullptr || Fails("GetDlgCtrlID") ? 0 : window->id;
}

std::int32_t GetDlgItem(std::int32_t hDlg, std::int32_t nIDDlgItem) {
  const Window* window = Find(hDlg);
  if (window == nullptr || Fails("GetDlgItem")) return 0;
  const auto& children = window->children;
  const auto found = std::find_if(children.begin(), children.end(),
                                  [nIDDlgItem](std::int32_t child) { return At(child).id == nIDDlgItem; });
  return found == children.end() ? 0 : *found;
}

// The windows are collected before the first call, so that the callback may make and destroy some.
std::int32_t EnumChildWindows(std::int32_t hWndParent, WNDENUMPROC lpEnumFunc, std::int32_t lParam) {
  const Window* parent = Find(hWndParent);
  if (parent == nullptr || Fails("EnumChildWindows")) return 0;
  std::vector<std::int32_t> all;
  Collect(parent->children, all);
  for (const std::int32_t hWnd : all) {
    if (Exists(hWnd) && lpEnumFunc(hWnd, lParam) == 0) return 0;
  }
  return 1;
}

std::int32_t GetParent(std::int32_t hWnd) {
  const Window* window = Find(hWnd);
  return window == nullptr || Fails("GetParent") ? 0 : window->parent;
}

bool IsWindow(std::int32_t hWnd) { return Exists(hWnd); }

std::int32_t GetForegroundWindow() { return Fails("GetForegroundWindow") ? 0 : Foreground(); }

std::uint32_t GetWindowThreadProcessId(std::int32_t hWnd, std::uint32_t& lpdwProcessId) {
  lpdwProcessId = 0;
  const Window* window = Find(hWnd);
  if (window == nullptr || Fails("GetWindowThreadProcessId")) return 0;
  lpdwProcessId = window->process;
  return window->process + kThreadOfProcess;
}

bool GetWindowRect(std::int32_t hWnd, Rect& lpRect) {
  const Window* window = Find(hWnd);
  if (window == nullptr || Fails("GetWindowRect")) return false;
  lpRect = window->rectangle;
  return true;
}

double WindowScale(std::int32_t hWnd) {
  constexpr double kUnawareTwips = 15;  // to the pixel, at 96 dots to the inch
  const Window* window = Find(hWnd);
  while (window != nullptr && window->parent != 0) window = Find(window->parent);
  return window == nullptr || window->knowsResolution ? 1 : kUnawareTwips / TwipsPerPixelX();
}

}  // namespace platform
