#include "platform/registry.h"

#include <algorithm>

#include "platform/simulated/state.h"
#include "runtime/text.h"

namespace platform {
namespace simulated {
namespace {

constexpr std::int32_t kFileNotFound = 2;
constexpr std::int32_t kAccessDenied = 5;
constexpr std::int32_t kInvalidHandle = 6;
constexpr std::int32_t kMoreData = 234;

// The path of an open key or of the root; nothing for any other number.
std::optional<std::string> PathOfKey(std::int32_t hKey) {
  if (hKey == HKEY_LOCAL_MACHINE) return "";
  const auto& keys = TheDesktop().openKeys;
  const auto found = keys.find(hKey);
  if (found == keys.end()) return std::nullopt;
  return found->second;
}

std::string Below(const std::string& path, std::string subKey) {
  if (subKey.ends_with('\\')) subKey.pop_back();
  if (path.empty() || subKey.empty()) return path + subKey;
  return path + "\\" + subKey;
}

// A key exists when it holds something or lies on the way to another one.
bool KeyExists(const std::string& path) {
  if (path.empty()) return true;
  return std::ranges::any_of(Registry(), [&](const auto& key) {
    return runtime::EqualIgnoringCase(std::string_view(key.first).substr(0, path.size()), path) &&
           (key.first.size() == path.size() || key.first[path.size()] == '\\');
  });
}

// The entry with this name, or null.
template <class Value>
Value* FindIgnoringCase(std::map<std::string, Value>& entries, const std::string& name) {
  const auto found =
      std::ranges::find_if(entries, [&](const auto& e) { return runtime::EqualIgnoringCase(e.first, name); });
  return found == entries.end() ? nullptr : &found->second;
}

template <class Value>
Value& FindOrAdd(std::map<std::string, Value>& entries, const std::string& name) {
  Value* found = FindIgnoringCase(entries, name);
  return found != nullptr ? *found : entries[name];
}

std::int32_t OpenKey(const std::string& path) {
  Desktop& desktop = TheDesktop();
  const std::int32_t handle = desktop.nextKey;
  desktop.nextKey += 4;
  desktop.openKeys[handle] = path;
  return handle;
}

}  // namespace

std::map<std::string, std::map<std::string, RegistryValue>>& Registry() { return TheDesktop().registry; }

}  // namespace simulated

using namespace simulated;

std::int32_t RegOpenKeyA(std::int32_t hKey, const std::string& lpSubKey, std::int32_t& phkResult) {
  phkResult = 0;
  if (Fails("RegOpenKeyA")) return kAccessDenied;
  const auto parent = PathOfKey(hKey);
  if (!parent) return kInvalidHandle;
  const std::string path = Below(*parent, lpSubKey);
  if (!KeyExists(path)) return kFileNotFound;
  phkResult = OpenKey(path);
  return 0;
}

std::int32_t RegCreateKeyA(std::int32_t hKey, const std::string& lpSubKey, std::int32_t& phkResult) {
  phkResult = 0;
  if (Fails("RegCreateKeyA")) return kAccessDenied;
  const auto parent = PathOfKey(hKey);
  if (!parent) return kInvalidHandle;
  const std::string path = Below(*parent, lpSubKey);
  if (!KeyExists(path)) Registry()[path];
  phkResult = OpenKey(path);
  return 0;
}

std::int32_t RegQueryValueExA(std::int32_t hKey, const std::string& lpValueName, std::uint32_t& lpType, char* lpData,
                              std::uint32_t& lpcbData) {
  if (Fails("RegQueryValueExA")) return kAccessDenied;
  const auto path = PathOfKey(hKey);
  if (!path) return kInvalidHandle;
  auto* values = FindIgnoringCase(Registry(), *path);
  const RegistryValue* value = values == nullptr ? nullptr : FindIgnoringCase(*values, lpValueName);
  if (value == nullptr) return kFileNotFound;
  const std::uint32_t room = lpcbData;
  lpType = value->type;
  lpcbData = static_cast<std::uint32_t>(value->bytes.size());
  if (lpData == nullptr) return 0;
  if (room < lpcbData) return kMoreData;
  std::ranges::copy(value->bytes, lpData);
  return 0;
}

std::int32_t RegSetValueExA(std::int32_t hKey, const std::string& lpValueName, std::uint32_t dwType,
                            const std::string& lpData) {
  if (Fails("RegSetValueExA")) return kAccessDenied;
  const auto path = PathOfKey(hKey);
  if (!path) return kInvalidHandle;
  FindOrAdd(FindOrAdd(Registry(), *path), lpValueName) = {dwType, lpData};
  return 0;
}

std::int32_t RegCloseKey(std::int32_t hKey) {
  if (Fails("RegCloseKey")) return kAccessDenied;
  if (hKey == HKEY_LOCAL_MACHINE) return 0;
  return TheDesktop().openKeys.erase(hKey) != 0 ? 0 : kInvalidHandle;
}

}  // namespace platform
