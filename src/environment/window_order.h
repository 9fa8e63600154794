// Keeping a window above the target application, and letting it step back while input is sent there.
#pragma once

#include <cstdint>

namespace basAPI {

void SetTopMost(std::int32_t hWnd);
void SetNotTopMost(std::int32_t hWnd);

}  // namespace basAPI
