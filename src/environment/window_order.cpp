#include "environment/window_order.h"

#include "platform/window_state.h"
#include "runtime/fault.h"

namespace basAPI {
namespace {

void InsertAfter(std::int32_t hWnd, std::int32_t band) {
  runtime::Skip([&] { platform::SetWindowPos(hWnd, band, 0, 0, 0, 0, platform::SWP_NOMOVE | platform::SWP_NOSIZE); });
}

}  // namespace

void SetTopMost(std::int32_t hWnd) { InsertAfter(hWnd, platform::HWND_TOPMOST); }
void SetNotTopMost(std::int32_t hWnd) { InsertAfter(hWnd, platform::HWND_NOTOPMOST); }

}  // namespace basAPI
