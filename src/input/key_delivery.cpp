#include "input/key_delivery.h"

#include "automation/window_search.h"
#include "environment/window_order.h"
#include "frame/frmStatus.h"
#include "input/send_keys.h"
#include "platform/input.h"
#include "platform/window_state.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {

using runtime::Skip;

void PressKeys(const std::string& keys) {
  Skip([&] { basAPI::SendKeys(runtime::EqualIgnoringCase(keys, "{SPACE}") ? " " : keys); });
}

void DeliverKeys(std::int32_t hThreadWindow, std::int32_t hWindow, std::int32_t hControl, const std::string& keys) {
  std::uint32_t target = 0;
  std::uint32_t own = 0;
  Skip([&] { basAPI::SetNotTopMost(frmStatus.hWnd()); });
  Skip([&] { target = ThreadOf(hThreadWindow); });
  Skip([&] { own = ThreadOf(frmStatus.hWnd()); });
  Skip([&] { platform::AttachThreadInput(target, own, true); });
  Skip([&] { platform::SetForegroundWindow(hWindow); });
  if (hControl != 0) Skip([&] { platform::SetFocus(hControl); });
  PressKeys(keys);
  Skip([&] { platform::AttachThreadInput(target, own, false); });
  Skip([&] { basAPI::SetTopMost(frmStatus.hWnd()); });
}

}  // namespace basMain
