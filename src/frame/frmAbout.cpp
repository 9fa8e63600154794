#include "frame/frmAbout.h"

#include <string>
#include <variant>

#include "environment/modRegistry.h"
#include "environment/paths.h"
#include "platform/dialogs.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "platform/system.h"
#include "platform/window_state.h"
#include "resources/texts.h"
#include "runtime/fault.h"

namespace basMain {
namespace {

// A text of the machine's part of the registry; empty where it is missing or of another type.
std::string GetKeyValue(const std::string& key, const std::string& name) {
  const auto value = modRegistry::ReadRegistryValue(platform::HKEY_LOCAL_MACHINE, key, name);
  const auto* text = std::get_if<std::string>(&value);
  return text ? *text : "";
}

// Path of the system information tool; empty where there is none.
std::string SystemInformationTool() {
  const std::string tool = GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH");
  if (basAPI::CheckFileExists(tool)) return tool;
  const std::string folder = GetKeyValue("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO");
  const std::string inFolder = folder + "\\MSINFO32.EXE";
  return !folder.empty() && basAPI::CheckFileExists(inFolder) ? inFolder : "";
}

std::string VersionText(const platform::FileVersion& version) {
  return "Version: " + std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
         std::to_string(version.revision);
}

}  // namespace

AboutForm frmAbout;

AboutForm::AboutForm()
    : Form("frmAbout", "Info"),
      picIcon(*this, "picIcon"),
      lblTitle(*this, "lblTitle", resources::kProgramTitle),
      lblVersion(*this, "lblVersion", "Version: 000.000.000"),
      lblDisclaimer(*this, "lblDisclaimer", "", {.characters = 52, .lines = 5}),
      cmdOK(*this, "cmdOK", "OK", forms::ButtonRole::Default, [this] { cmdOK_Click(); }),
      cmdSysInfo(*this, "cmdSysInfo", "&Systeminfo...", forms::ButtonRole::Plain, [this] { cmdSysInfo_Click(); }) {}

forms::Box AboutForm::Layout() {
  return forms::Column({forms::Row({picIcon, forms::Column({lblTitle, lblVersion})}), lblDisclaimer,
                        forms::Buttons({cmdOK, cmdSysInfo})});
}

void AboutForm::Form_Load() {
  using runtime::Skip;
  Skip([&] { picIcon.SetIcon("ICOQUM"); });
  Skip([&] { lblVersion.SetCaption(VersionText(platform::ApplicationVersion())); });
  Skip([&] { lblDisclaimer.SetCaption(resources::Text(resources::TextId::Notice)); });
}

void AboutForm::cmdOK_Click() { Unload(); }

void AboutForm::cmdSysInfo_Click() { StartSysInfo(); }

void AboutForm::StartSysInfo() {
  const std::string tool = SystemInformationTool();
  if (tool.empty())
    platform::MessageBoxA(hWnd(), "Systeminformationen sind momentan nicht verfügbar", resources::kProgramTitle,
                          platform::MB_OK);
  else platform::StartProgram("\"" + tool + "\"", platform::SW_SHOWNORMAL);
}

}  // namespace basMain
