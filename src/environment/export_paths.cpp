#include "environment/export_paths.h"

#include <cstdint>
#include <string_view>

#include "clients/state.h"
#include "environment/create_path.h"
#include "environment/discovery.h"
#include "environment/paths.h"
#include "platform/files.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {

using basAPI::JoinPath;
using runtime::Element;
using runtime::Fault;
using runtime::Skip;
using runtime::Split;
using runtime::Trim;

namespace {

// The file's second line, or the first of a file that has only one.
std::string SecondLine(std::int32_t file) {
  std::string text;
  std::string piece(4096, '\0');
  while (const std::size_t got = platform::ReadFile(file, piece.data(), piece.size())) text.append(piece, 0, got);
  std::string_view rest = text;
  std::string_view line;
  for (int i = 0; i < 2 && !rest.empty(); ++i) line = runtime::TakeLine(rest);
  return std::string(line);
}

// The year is the last four characters of an export path.
std::string WithoutYear(const std::string& path) {
  if (path.size() < 4) throw Fault(runtime::FaultNumber::InvalidCall);
  return path.substr(0, path.size() - 4);
}

}  // namespace

std::string GetExportPath(const std::string& module) {
  std::string base;
  std::string context;
  std::string path;
  Skip([&] { base = JoinPath(GetTeRuDestination(), "Extern"); });
  Skip([&] { context = clients.ContextPath.empty() ? GetTitlePath() : clients.ContextPath; });
  const auto pieces = Split(Trim(context), '\\');
  if (module == "ANL") {
    Skip([&] { path = JoinPath(base, GetAnlTempName()); });
  } else if (module == "GDPDU") {
    Skip([&] { path = JoinPath(Trim(base), Element(pieces, 1), "FIBU", Element(pieces, 2), Trim(module)); });
  } else if (module == "FIBU") {
    // The caption does not serve here as it does for "GDPDU": without a confirmed client the path is empty.
    if (!clients.ContextPath.empty())
      Skip([&] { path = JoinPath(Trim(base), Element(pieces, 1), "FIBU", Element(pieces, 2)); });
  } else {
    Skip([&] { path = JoinPath(Trim(base), Trim(context)); });
  }
  Skip([&] { basAPI::CreatePath(path); });
  return path;
}

std::string GetAnlTempName() {
  const auto pieces = Split(GetTitlePath(), '\\');
  return pieces.size() > 2 ? "ANLTEMP" + Trim(pieces[1]) : "ANLTEMP";
}

std::string GetMandantPath(const std::string& module) {
  try {
    const std::string path = GetExportPath(module);
    const std::int32_t file = platform::OpenFile(JoinPath(path, "Mandanten.txt"), platform::FileMode::Read);
    const auto fields = Split(SecondLine(file), ';');
    // A fault here leaves the file open until the program ends.
    const std::string& folder = Element(fields, 17);
    std::string mandantPath;
    if (!folder.empty()) mandantPath = WithoutYear(path) + folder;
    Skip([&] { platform::CloseFile(file); });
    return mandantPath;
  } catch (...) {
    runtime::CaughtFault();
    return "";
  }
}

}  // namespace basMain
