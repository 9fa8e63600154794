#include "files.h"

#include <filesystem>

#include "common/tool.h"
#include "platform/simulated/desktop.h"
#include "platform/simulated/host_paths.h"
#include "runtime/fault.h"
#include "texts.h"

namespace makrun {
namespace {

using tools::FileError;
using tools::Say;

template <class Operation>
void OnDrive(const std::string& path, Operation&& operation) {
  const std::string told = platform::simulated::ToUtf8(path);
  try {
    operation();
  } catch (const runtime::Fault& fault) {
    throw FileError{Say(say::kNotMade, {told, platform::simulated::ToUtf8(fault.description)})};
  } catch (const std::filesystem::filesystem_error& error) {
    throw FileError{Say(say::kNotMade, {told, error.code().message()})};
  }
}

}  // namespace

void PutSimulatedFile(const std::string& path, const std::string& bytes) {
  OnDrive(path, [&] { platform::simulated::PutFile(path, bytes); });
}

void MakeSimulatedFolder(const std::string& path) {
  OnDrive(path, [&] { std::filesystem::create_directories(platform::simulated::HostPath(path)); });
}

}  // namespace makrun
