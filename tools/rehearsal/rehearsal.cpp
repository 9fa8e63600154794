#include "rehearsal.h"

#include "engine/reset.h"
#include "forms/simulated/user.h"
#include "frame/frmMain.h"
#include "frame/start_up.h"
#include "platform/registry.h"
#include "platform/simulated/desktop.h"

namespace rehearsal {

namespace simulated = platform::simulated;

namespace {

void ResetSystem() {
  basMain::ResetProgram();
  forms::simulated::Reset();
  simulated::Reset();
  basMain::ConnectForms();
}

}  // namespace

FreshSystem::FreshSystem() { ResetSystem(); }
FreshSystem::~FreshSystem() { ResetSystem(); }

void StartProgram() {
  std::int32_t hKey = 0;
  std::uint32_t type = 0;
  std::uint32_t size = 0;
  platform::RegCreateKeyA(platform::HKEY_LOCAL_MACHINE, "Software\\TARVEN\\Setup\\Destinations", hKey);
  if (platform::RegQueryValueExA(hKey, "Teru", type, nullptr, size) != 0)
    platform::RegSetValueExA(hKey, "Teru", platform::REG_SZ, std::string("C:\\TeRu\0", 9));
  platform::RegCloseKey(hKey);
  basMain::frmMain.Load();
}

std::vector<std::string> LinesOf(const std::string& path) {
  std::vector<std::string> lines;
  const std::string text = simulated::GetFile(path);
  std::size_t from = 0;
  for (auto end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", from)) {
    lines.push_back(text.substr(from, end - from));
    from = end + 2;
  }
  if (from < text.size()) lines.push_back(text.substr(from));
  return lines;
}

}  // namespace rehearsal
