#include "automation/window_search.h"

#include "automation/state.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "forms/form.h"
#include "frame/state.h"
#include "platform/system.h"
#include "platform/window_lookup.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using runtime::EqualIgnoringCase;
using runtime::Skip;

// The first collected descendant that matches. Every one is read, in the order of the enumeration.
template <class Matches>
std::int32_t FirstDescendant(std::int32_t hParent, Matches&& matches) {
  EmptyChildWindowList();
  CollectChildWindows(hParent);
  const auto& list = automation.ChildWindowList;
  for (std::size_t i = 0; i + 1 < list.size(); ++i)
    if (matches(list[i])) return list[i];
  return 0;
}

bool IsControl(std::int32_t hWnd, const std::string& text, const std::string& cls, std::int32_t id) {
  return !cls.empty() && EqualIgnoringCase(GetWindowClass(hWnd), cls) &&
         (text.empty() || EqualIgnoringCase(GetWindowTitle(hWnd), text)) &&
         (id == 0 || platform::GetDlgCtrlID(hWnd) == id);
}

}  // namespace

bool SearchWindow(const std::string& window, std::int32_t& hWindow, bool exact, const std::string& text,
                  const std::string& cls, const std::string& id, const std::string& frameId, std::int32_t& hControl) {
  const std::string& number = frameId.empty() ? id : frameId;
  return Standard("SearchWindow", [&] {
    std::int32_t control = 0;
    std::int32_t h = platform::FindWindowA(nullptr, nullptr);
    do {
      forms::Pump();
      const std::string title = GetWindowTitle(h);
      if (!title.empty()) {
        platform::Sleep(10);
        if (exact ? title == window : runtime::Contains(title, window)) {
          if ((text + cls).empty()) {
            hWindow = h;
            if (exact) hControl = control;
            return true;
          }
          control = SearchControl(h, text, cls, runtime::ToLong(number));
          if (control != 0) {
            hWindow = h;
            hControl = control;
            return true;
          }
        }
      }
      h = platform::GetWindow(h, platform::GW_HWNDNEXT);
    } while (h != 0 && !run.StopRun);
    // A control found here comes back as the window: the caller then looks below it and reports it as missing.
    hWindow = SearchChildWindow(frame.MainWindow, window, text, cls, runtime::ToLong(number));
    return hWindow != 0;
  });
}

std::int32_t SearchControl(std::int32_t hParent, const std::string& text, const std::string& cls, std::int32_t id) {
  return FirstDescendant(hParent, [&](std::int32_t hWnd) { return IsControl(hWnd, text, cls, id); });
}

std::int32_t SearchChildWindow(std::int32_t hParent, const std::string& caption, const std::string& text,
                               const std::string& cls, std::int32_t id) {
  if (!(text + cls).empty()) return SearchControl(hParent, text, cls, id);
  return FirstDescendant(hParent, [&](std::int32_t hWnd) { return EqualIgnoringCase(GetWindowTitle(hWnd), caption); });
}

std::string GetWindowTitle(std::int32_t hWnd) {
  std::string title;
  Skip([&] {
    const std::int32_t length = platform::GetWindowTextLengthA(hWnd);
    std::string buffer;
    const std::int32_t copied = platform::GetWindowTextA(hWnd, buffer, length + 1);
    title = buffer.substr(0, static_cast<std::size_t>(copied));
  });
  return title;
}

std::string GetWindowClass(std::int32_t hWnd) {
  constexpr std::int32_t kClassBuffer = 128;
  std::string name;
  Skip([&] { platform::GetClassNameA(hWnd, name, kClassBuffer); });
  return name;
}

std::uint32_t ThreadOf(std::int32_t hWnd) {
  std::uint32_t process = 0;
  return platform::GetWindowThreadProcessId(hWnd, process);
}

void EmptyChildWindowList() { automation.ChildWindowList.assign(1, 0); }

void CollectChildWindows(std::int32_t hParent) {
  Skip([&] { platform::EnumChildWindows(hParent, CollectChildProc, 0); });
}

std::int32_t PLATFORM_CALLBACK CollectChildProc(std::int32_t hWnd, std::int32_t /*lParam*/) {
  // No exception can pass through the system, which calls this: a list that memory does not hold ends here.
  bool added = false;
  Skip([&] {
    automation.ChildWindowList.push_back(0);
    *(automation.ChildWindowList.end() - 2) = hWnd;
    added = true;
  });
  return added;
}

std::int32_t MakeLong(std::int16_t low, std::int16_t high) { return high * 65536 + low; }

}  // namespace basMain
