#include "environment/settings.h"

#include "frame/log.h"
#include "platform/settings.h"
#include "runtime/fault.h"

namespace basAPI {

using runtime::Skip;

std::string ReadIniString(const std::string& file, const std::string& section, const std::string& key,
                          const std::string& defaultValue) {
  constexpr std::uint32_t kBuffer = 4096;
  std::string buffer(kBuffer, ' ');
  std::uint32_t length = 0;
  Skip([&] { length = platform::GetPrivateProfileStringA(section, key, defaultValue, buffer, kBuffer, file); });
  return buffer.substr(0, length);
}

std::int32_t WriteIniString(const std::string& file, const std::string& section, const std::string& key,
                            const std::string& value) {
  std::int32_t result = 0;
  Skip([&] { result = platform::WritePrivateProfileStringA(section, key, value, file); });
  return result;
}

std::string ReadINI(const std::string& section, const std::string& key) {
  const std::string value = ReadIniString(SettingsFile(), section, key, "");
  basMain::LogWrite("ReadINI=" + value);
  return value;
}

}  // namespace basAPI

namespace basMain {

bool IsGdpduMode(const std::string& value) {
  return basAPI::ReadIniString(basAPI::SettingsFile(), "Allgemein", "GDPDU", "0") == value;
}

}  // namespace basMain
