#include "environment/create_path.h"

#include "engine/standard_handler.h"
#include "frame/log.h"
#include "platform/files.h"
#include "resources/texts.h"

namespace basAPI {

bool CreatePath(const std::string& path) {
  return basMain::Standard("CreatePath", [&] {
    const std::string directory = path.ends_with('\\') ? path : path + "\\";
    if (!platform::MakeSureDirectoryPathExists(directory)) return false;
    basMain::LogWrite(resources::Text(resources::TextId::PathCreated) + directory);
    return true;
  });
}

}  // namespace basAPI
