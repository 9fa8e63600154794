#include "support/press.h"

#include <utility>

#include "forms/simulated/user.h"
#include "platform/messages.h"
#include "platform/shell.h"
#include "platform/simulated/desktop.h"

namespace support {

namespace simulated = platform::simulated;

void Macro(const std::string& file, const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  simulated::PutFile(kProgram + "\\" + file, text);
}

void MacroEntry(int number, const std::string& entry) { Setting("Makro", "Makro" + std::to_string(number), entry); }

void PressHotKey() {
  simulated::PressHotKey(platform::MOD_ALT, platform::VK_F12);
  forms::Pump();
}

void PressHotKeyAfter(std::int32_t milliseconds) {
  simulated::Schedule(milliseconds, [] { simulated::PressHotKey(platform::MOD_ALT, platform::VK_F12); });
}

void User(std::function<void()> acts) {
  forms::simulated::WhenModal([acts = std::move(acts)](forms::Form&) { acts(); });
}

void Click(const forms::Button& button) { platform::PostMessageA(button.now.handle, platform::BM_CLICK, 0, 0); }

void ClickClose(forms::Form& form) { platform::PostMessageA(form.Window(), platform::WM_CLOSE, 0, 0); }

std::vector<std::string> Header(const std::string& macro) {
  return {"", kStars, "Tarven Datenexport wurde gestartet...", "Datum:14.03.2006 09:30:00", "MakroFile: " + macro};
}

std::vector<std::string> operator+(std::vector<std::string> first, const std::vector<std::string>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

void ExpectLog(const std::vector<std::string>& lines, std::source_location where) {
  const testing::ScopedTrace trace(where.file_name(), static_cast<int>(where.line()), "");
  EXPECT_EQ(Log(), lines);
}

std::string ShownIcon() { return simulated::Tray() ? simulated::Tray()->icon : ""; }

}  // namespace support
