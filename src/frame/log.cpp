#include "frame/log.h"

#include "environment/paths.h"
#include "platform/system.h"
#include "runtime/fault.h"

namespace basMain {

LogState log;

const std::string kStarLine(80, '*');

std::string LogFile() { return basAPI::JoinPath(platform::ApplicationPath(), "QUMAEXP.LOG"); }

void OpenLog() { log.LogStream = FileSystem().OpenToAppend(LogFile()); }

void LogWrite(const std::string& text) {
  if (!log.LogStream) return;
  runtime::Skip([&] { log.LogStream->WriteLine(text); });
}

}  // namespace basMain
