#include "automation/message_boxes.h"

#include <cstdint>
#include <optional>

#include "automation/state.h"
#include "automation/window_search.h"
#include "engine/state.h"
#include "forms/form.h"
#include "frame/log.h"
#include "platform/class_names.h"
#include "platform/messages.h"
#include "platform/system.h"
#include "platform/window_lookup.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using runtime::Skip;

struct MessageBoxFound {
  std::int32_t window;
  std::string title;
  std::string text;
};

// The text of the first collected static child that holds the fragment. The whole list is read, also what earlier
// windows have left in it.
std::optional<std::string> FittingStaticText(const std::string& fragment) {
  const auto& list = automation.ChildWindowList;
  for (std::size_t i = 0; i + 1 < list.size(); ++i) {
    if (!runtime::EqualIgnoringCase(GetWindowClass(list[i]), "STATIC")) continue;
    const std::string text = GetWindowTitle(list[i]);
    if (runtime::ContainsIgnoringCase(text, fragment)) return text;
  }
  return std::nullopt;
}

// One pass over the top-level windows, with a pause (milliseconds) for each titled one.
std::optional<MessageBoxFound> FindMessageBox(const std::string& title, const std::string& text, std::int32_t pause) {
  std::int32_t h = platform::FindWindowA(nullptr, nullptr);
  do {
    forms::Pump();
    const std::string caption = GetWindowTitle(h);
    if (!caption.empty()) {
      Skip([&] { platform::Sleep(pause); });
      if (runtime::Contains(caption, title)) {
        CollectChildWindows(h);
        if (const auto found = FittingStaticText(text)) return MessageBoxFound{h, caption, *found};
      }
    }
    h = platform::GetWindow(h, platform::GW_HWNDNEXT);
  } while (h != 0 && !run.StopRun);
  return std::nullopt;
}

std::int32_t FindButton(std::int32_t window, const std::string& text) {
  const std::int32_t button = SearchControl(window, text, "Button", 0);
  return button != 0 ? button : SearchControl(window, text, platform::kCommandButtonClass, 0);
}

// A box with neither button is logged as answered with "Ja" as well, and gets the command 0.
void Answer(const MessageBoxFound& box) {
  std::int32_t button = FindButton(box.window, "OK");
  std::string word = "OK";
  if (button == 0) {
    button = FindButton(box.window, "Ja");
    word = "Ja";
  }
  LogWrite("Dialog " + box.title + " / " + box.text + " wurde mit " + word + " bestätigt.");
  Skip([&] { platform::PostMessageA(box.window, platform::WM_COMMAND, platform::GetDlgCtrlID(button), 0); });
}

void BeginVerb(const std::string& verb, const std::string& title, const std::string& text) {
  EmptyChildWindowList();
  automation.DialogTitle = title;
  automation.DialogText = text;
  LogWrite(verb + ": " + title + " / " + text);
}

}  // namespace

bool ConfirmDialog(const std::string& title, const std::string& text) {
  BeginVerb("ConfirmDialog", title, text);
  const auto box = FindMessageBox(title, text, 10);
  if (box) Answer(*box);
  return box.has_value();
}

bool WaitForDialog(const std::string& title, const std::string& text) {
  BeginVerb("WaitForDialog", title, text);
  for (;;) {
    platform::Sleep(1000);
    if (const auto box = FindMessageBox(title, text, 100)) {
      Answer(*box);
      return true;
    }
  }
}

}  // namespace basMain
