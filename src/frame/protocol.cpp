#include "frame/protocol.h"

#include "engine/standard_handler.h"
#include "environment/paths.h"
#include "platform/system.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {

ProtocolState protocol;

bool CreateProtocol(const std::string& file) {
  return Standard("CreateProtocol", [&] {
    CloseProtocol();
    const bool bareName = !runtime::Contains(file, "\\");
    const std::string path = bareName ? basAPI::JoinPath(platform::ApplicationPath(), file) : file;
    protocol.ProtocolStream = FileSystem().OpenToAppend(path);
    return true;
  });
}

bool AddProtocol(const std::string& text) {
  if (protocol.ProtocolStream) runtime::Skip([&] { protocol.ProtocolStream->WriteLine(text); });
  return true;
}

bool CloseProtocol() {
  protocol.ProtocolStream.reset();
  return true;
}

}  // namespace basMain
