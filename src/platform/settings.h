// Section files: lines [Section] and Key=Value. Sections and keys are matched without case.
#pragma once

#include <cstdint>
#include <string>

namespace platform {

// Puts the value, or the default where file, section or key is missing, into lpReturnedString, cut to nSize - 1
// bytes, and yields its length. Blanks around the value and one pair of enclosing quotes are removed.
std::uint32_t GetPrivateProfileStringA(const std::string& lpAppName, const std::string& lpKeyName,
                                       const std::string& lpDefault, std::string& lpReturnedString, std::uint32_t nSize,
                                       const std::string& lpFileName);

// Writes one key, making file and section where needed; 0 when the system refuses.
std::int32_t WritePrivateProfileStringA(const std::string& lpAppName, const std::string& lpKeyName,
                                        const std::string& lpString, const std::string& lpFileName);

}  // namespace platform
