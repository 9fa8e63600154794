#include "environment/discovery.h"

#include <cstdint>
#include <variant>

#include "automation/window_search.h"
#include "engine/standard_handler.h"
#include "environment/create_path.h"
#include "environment/file_dialog.h"
#include "environment/modRegistry.h"
#include "environment/paths.h"
#include "environment/settings.h"
#include "frame/frmMain.h"
#include "frame/log.h"
#include "frame/state.h"
#include "platform/dialogs.h"
#include "platform/registry.h"
#include "resources/texts.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using basAPI::JoinPath;
using runtime::Trim;

const char* const kRegistryKey = "Software\\TARVEN\\Setup\\Destinations\\";
const char* const kRegistryValue = "Teru";

std::string InstallationDirectory() {
  const auto value = modRegistry::ReadRegistryValue(platform::HKEY_LOCAL_MACHINE, kRegistryKey, kRegistryValue);
  if (const auto* number = std::get_if<std::int32_t>(&value)) return std::to_string(*number);
  return std::get<std::string>(value);
}

std::string FromSetupFile() {
  const std::string installation = InstallationDirectory();
  if (Trim(installation).empty()) return "";
  const std::string directory =
      Trim(basAPI::ReadIniString(JoinPath(installation, "Config", "Setup.cfg"), "TeRu Setup", "TERUData", ""));
  if (!directory.empty()) LogWrite("GetTeRuDestination (1. Setup.cfg): " + directory);
  return directory;
}

std::string FromRegistry() {
  const std::string directory = InstallationDirectory();
  if (!Trim(directory).empty()) LogWrite("GetTeRuDestination (2. RegValue): " + directory);
  return directory;
}

void Notice(const std::string& text) {
  platform::MessageBoxA(frmMain.Window(), text, resources::kProgramTitle,
                        platform::MB_OK | platform::MB_ICONINFORMATION);
}

std::string FromUser() {
  Notice(
      "Das Ausgabeverzeichnis für den Datenexport konnte nicht ermittelt werden.\r\n"
      "Bitte wählen Sie das TeRu-Installationsverzeichnis aus!");
  basAPI::FileDialog dialog;
  dialog.filter = basAPI::AddFileFilter("", "TARVEN TERU (*.EXE)");  // the mask stays "*.*" in spite of the words
  dialog.flags = platform::OFN_FILEMUSTEXIST | platform::OFN_HIDEREADONLY;
  dialog.fileName = "tarven.exe";
  dialog.title = "TARVEN Datenexport - Bitte wählen Sie das TeRu-Installationsverzeichnis aus";
  const std::string directory = GetFolderOfFile(basAPI::ShowFileDialog(dialog));
  LogWrite("GetTeRuDestination (3. FolderSelect): " + directory);
  modRegistry::WriteRegistryValue(platform::HKEY_LOCAL_MACHINE, kRegistryKey, kRegistryValue, directory);
  Notice("Das TeRu-Installationsverzeichnis wurde auf " + directory + " festgelegt.");
  return directory;
}

}  // namespace

std::string GetTeRuDestination() {
  try {
    std::string directory = FromSetupFile();
    if (directory.empty()) directory = FromRegistry();
    if (Trim(directory).empty()) directory = FromUser();
    basAPI::CreatePath(directory);
    if (directory.ends_with('\\')) directory.pop_back();
    return directory;
  } catch (...) {
    LogWrite(StandardErrorText("GetTeRuDestination", runtime::CaughtFault()));
    return "";
  }
}

std::string GetTeRuExternPath() {
  std::string path;
  runtime::Skip([&] { path = JoinPath(GetTeRuDestination(), "Extern"); });
  runtime::Skip([&] { basAPI::CreatePath(path); });
  return path;
}

std::string GetFolderOfFile(const std::string& path) {
  const auto end = path.find_last_of("\\/:");
  std::string folder = end == std::string::npos ? "" : path.substr(0, end + 1);
  if (folder.ends_with('\\')) folder.pop_back();
  return folder;
}

std::string GetTitlePath() {
  std::string caption;
  runtime::Skip([&] { caption = GetWindowTitle(frame.MainWindow); });
  const auto first = caption.find('/');
  if (first == std::string::npos) return "";
  return runtime::Replace(caption.substr(first, caption.rfind('/') - first), "/", "\\");
}

}  // namespace basMain
