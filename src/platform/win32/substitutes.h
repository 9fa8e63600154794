// What stands in for functions that the first systems of a family lack.
#pragma once

#include <cstdint>
#include <string>

namespace platform {

// Size of a file in bytes as a search finds it: Windows 95 has no GetFileAttributesEx. Faults as of FileSize.
std::int64_t FileSizeBySearch(const std::string& path);

// The top-level window that a window lies in, or itself; 0 for none. GetAncestor came with Windows 98 and a service
// pack of NT 4.
std::int32_t RootOf(std::int32_t hWnd);

}  // namespace platform
