#include "engine/line_form.h"

#include "runtime/text.h"

namespace basMain {

LineForm FormOf(std::string_view line) {
  if (line.empty()) return LineForm::Empty;
  const std::string start = runtime::ToUpper(line.substr(0, 3));
  if (start == "DIM") return LineForm::Declaration;
  if (start == "REM") return LineForm::Comment;
  return LineForm::Statement;
}

std::string DeclaredName(const std::string& line) { return line.size() > 4 ? line.substr(4) : ""; }

std::string AssignedName(const std::string& line) { return line.substr(0, line.find('=')); }

std::string AssignedCommand(const std::string& line) {
  const auto equals = line.find('=');
  if (equals == std::string::npos) return "";
  const std::string command = runtime::Remove(line.substr(equals + 1), '=');
  return runtime::Remove(runtime::Replace(command, "(", "="), ')');
}

std::string NormalisedLine(std::string_view line) { return runtime::Remove(runtime::Trim(line), '\t'); }

std::string MarkKey(std::string_view line) { return runtime::Trim(runtime::ToUpper(line)); }

bool IsMark(std::string_view key) { return key.starts_with("MARK="); }

}  // namespace basMain
