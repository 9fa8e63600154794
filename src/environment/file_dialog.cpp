#include "environment/file_dialog.h"

#include "environment/paths.h"
#include "frame/frmMain.h"
#include "platform/dialogs.h"
#include "platform/system.h"
#include "runtime/fault.h"

namespace basAPI {

std::string ShowFileDialog(FileDialog& dialog) {
  constexpr std::size_t kFile = 256;
  constexpr std::size_t kCustomFilter = 255;
  platform::OPENFILENAME record;
  record.hwndOwner = dialog.owner.value_or(basMain::frmMain.Window());
  record.lpstrFilter = dialog.filter;
  record.lpstrCustomFilter.assign(kCustomFilter, '\0');
  record.nFilterIndex = dialog.filterIndex;
  record.lpstrFile = dialog.fileName;
  record.lpstrFile.resize(kFile, '\0');
  record.lpstrFileTitle.assign(kFile, '\0');
  record.lpstrInitialDir = dialog.directory.value_or(platform::CurrentDirectory());
  record.lpstrTitle = dialog.title;
  record.Flags = dialog.flags;
  record.lpstrDefExt = dialog.defaultExtension;
  bool chosen = false;
  runtime::Skip(
      [&] { chosen = dialog.open ? platform::GetOpenFileNameA(record) : platform::GetSaveFileNameA(record); });
  if (!chosen) return "";
  dialog.flags = record.Flags;
  return TrimAtNul(record.lpstrFile);
}

std::string AddFileFilter(const std::string& filter, const std::string& description, const std::string& mask) {
  return filter + description + '\0' + mask + '\0';
}

}  // namespace basAPI
