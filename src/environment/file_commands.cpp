#include "environment/file_commands.h"

#include <cstdint>
#include <vector>

#include "automation/status_dialog_verbs.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "environment/create_path.h"
#include "environment/file_system.h"
#include "environment/paths.h"
#include "forms/form.h"
#include "frame/log.h"
#include "platform/system.h"
#include "resources/texts.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using resources::Text;
using resources::TextId;

// From the last dot to the end, in capitals; empty without a dot.
std::string GetExtension(const std::string& path) {
  const auto dot = path.rfind('.');
  return dot == std::string::npos ? "" : runtime::ToUpper(path.substr(dot));
}

// Up to and including the last backslash; empty without one.
std::string GetFolderPart(const std::string& path) {
  const auto backslash = path.rfind('\\');
  return backslash == std::string::npos ? "" : path.substr(0, backslash + 1);
}

// The files that are waited for.
struct FileList {
  std::vector<platform::FilePath> paths;

  void Add(const platform::FilePath& path) {
    constexpr std::size_t kMost = 100;
    if (paths.size() == kMost) throw runtime::Fault(runtime::FaultNumber::OutOfRange);
    paths.push_back(path);
  }
};

// One look for the files; true when there is one. The name part of a pattern plays no role.
bool FindFiles(const std::string& file, FileList& list) {
  list.paths.clear();
  if (!runtime::Contains(file, "*")) {
    list.Add(file);
    return FileSystem().FileExists(file);
  }
  const std::string extension = GetExtension(file);
  for (const FolderFile& found : FileSystem().FilesOf(GetFolderPart(file)))
    if (GetExtension(found.Name) == extension) list.Add(found.Path);
  return !list.paths.empty();
}

// Waits until two sizes that are read 1.5 seconds apart are equal.
void WaitUntilFinished(const platform::FilePath& path) {
  while (FileSystem().FileExists(path)) {
    const std::int32_t size = FileSystem().SizeOf(path);
    forms::Pump();
    DisplayStatus(Text(TextId::FileRead), std::to_string(size));
    platform::Sleep(1500);
    if (FileSystem().SizeOf(path) == size || run.StopRun) return;
  }
  LogWrite(Text(TextId::FileGone) + path.Text());
}

}  // namespace

bool DeleteFile(const std::string& file) {
  return Standard("DeleteFile", [&] {
    // Only this sequence is a pattern: "*.txt" is tested as a name, is not found and counts as deleted.
    const bool pattern = runtime::Contains(file, "*.*");
    if (pattern || basAPI::CheckFileExists(file)) FileSystem().DeleteFile(file);
    LogWrite(Text(pattern ? TextId::FilesDeleted : TextId::FileDeleted) + file);
    return true;
  });
}

bool DeleteFolder(const std::string& folder) {
  const bool deleted = Standard("DeleteFolder", [&] {
    if (!FileSystem().FolderExists(folder)) return true;
    FileSystem().DeleteFolder(folder);
    LogWrite(Text(TextId::FolderDeleted) + folder);
    return true;
  });
  if (!deleted) run.LastError += " (" + folder + ")";
  return deleted;
}

bool CopyFile(const std::string& source, const std::string& destination) {
  try {
    // Makes a directory of what was meant as a file's name too, which the copy is then refused by.
    basAPI::CreatePath(destination);
    FileSystem().CopyFile(source, destination);
    LogWrite("CopyFile " + source + " To " + destination);
    return true;
  } catch (...) {
    const runtime::Fault fault = runtime::CaughtFault();
    return Fail("Fehler " + std::to_string(static_cast<int>(fault.number)) + " beim Kopieren: " + fault.description);
  }
}

bool CopyFolder(const std::string& source, const std::string& destination) {
  return Standard("CopyFolder", [&] {
    LogWrite("CopyFolder: Source=" + source + " Destination=" + destination);
    if (source.empty() || destination.empty()) return true;
    if (!FileSystem().FolderExists(destination)) {
      LogWrite("Ordner wird erstellt (" + destination + ")");
      basAPI::CreatePath(destination);
    }
    if (FileSystem().FolderExists(source)) FileSystem().CopyFolder(source, destination);
    return true;
  });
}

bool RenamePath(const std::string& source, const std::string& destination) {
  return Standard("RenamePath", [&] {
    LogWrite("RenamePath: Source=" + source + " Destination=" + destination);
    if (source.empty() || destination.empty()) return true;
    // Before the source is looked at: a missing source costs the destination.
    if (FileSystem().FolderExists(destination)) {
      LogWrite("Ordner wird gelöscht, da dieser bereits existiert (" + destination + ")");
      FileSystem().DeleteFolder(destination);
    }
    if (FileSystem().FolderExists(source)) FileSystem().MoveFolder(source, destination);
    return true;
  });
}

std::string CreateDir(const std::string& piece1, const std::string& piece2, const std::string& piece3,
                      const std::string& piece4, const std::string& piece5) {
  std::string made;
  Standard("CreateDir", [&] {
    // Dates become folder names in this way; a dot in a fixed part of the path goes too.
    const std::string path = runtime::Remove(basAPI::JoinPath(piece1, piece2, piece3, piece4, piece5), '.');
    basAPI::CreatePath(path);
    LogWrite("CreateDir: " + path);
    made = path;
    return true;
  });
  return made;
}

bool WaitForFile(const std::string& file) {
  return Standard("WaitForFile", [&] {
    FileList list;
    bool found = false;
    do {
      found = FindFiles(file, list);
      forms::Pump();
      platform::Sleep(500);
    } while (!found && !run.StopRun);
    for (const platform::FilePath& path : list.paths) WaitUntilFinished(path);
    return true;
  });
}

}  // namespace basMain
