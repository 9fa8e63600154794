#include "input/key_verbs.h"

#include <cstdint>

#include "automation/control_address.h"
#include "automation/window_search.h"
#include "forms/form.h"
#include "frame/log.h"
#include "frame/state.h"
#include "input/key_delivery.h"
#include "platform/system.h"
#include "resources/texts.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"

namespace basMain {

using runtime::Skip;

namespace {

bool Sent(const std::string& keys) {
  constexpr std::int32_t kTimeToAct = 100;
  Skip([&] { platform::Sleep(kTimeToAct); });
  LogWrite(resources::Text(resources::TextId::KeySent) + keys);
  return true;
}

}  // namespace

bool SendKey(const std::string& keys) {
  Skip([&] { forms::Pump(); });
  PressKeys(keys);
  return Sent(keys);
}

bool SendKeyToControl(const std::string& keys, const std::string& id, const std::string& window, const std::string& cls,
                      const std::string& text) {
  std::int32_t hWindow = 0;
  std::int32_t control = 0;
  Skip([&] { SearchWindow(window, hWindow, false, text, cls, id, "", control); });
  if (hWindow != 0) Skip([&] { control = SearchControl(hWindow, text, cls, runtime::ToLong(id)); });
  Skip([&] { forms::Pump(); });
  if (control == 0) return false;
  DeliverKeys(frame.MainWindow, hWindow, control, keys);
  return Sent(keys);
}

bool SendKeyToWindow(const std::string& keys, const std::string& window) {
  std::int32_t hWindow = 0;
  Skip([&] { hWindow = FindAddressedWindow({.window = window}); });
  Skip([&] { forms::Pump(); });
  DeliverKeys(frame.MainWindow, hWindow, 0, keys);
  return Sent(keys);
}

}  // namespace basMain
