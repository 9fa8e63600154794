#include "settings_rules.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <set>

#include "common/code_pages.h"
#include "common/tool.h"
#include "engine/parser.h"
#include "runtime/code_page.h"
#include "runtime/conversions.h"
#include "runtime/text.h"

namespace makcheck {
namespace {

namespace fs = std::filesystem;
using runtime::EqualIgnoringCase;
using runtime::Trim;

struct Key {
  std::string_view section, name;
};
constexpr Key kKeys[] = {
    {"Makro-Fibu", "Files"},          {"Allgemein", "MandantenDLG"},     {"Allgemein", "GDPDU"},
    {"Einkommensteuer", "Basisnummer"}, {"Einkommensteuer", "Veranlagungsjahr"}, {"MERLA", "Version"},
    {"MERLA", "MatrixJahrVonBis"},    {"MERLA", "MatrixWährung"},        {"MERLA", "MatrixCheckSteuerrecht"},
    {"MERLA", "MatrixCheckKalkulation"}, {"MERLA", "MatrixCheckHandelsrecht"}, {"MERLA", "MatrixCheckIASIFRS"},
    {"MERLA", "WirtschaftsjahrAb"},   {"MERLA", "WirtschaftsjahrBis"},
};
constexpr int kTableEntries = 15;

// Macros that always begin with the dialog for client and year.
constexpr std::string_view kAlwaysAsk[] = {"QUMAFIBU.MAK", "QUMAFIBUCOMP.MAK", "QUMABILANZ.MAK"};

bool IsTableKey(const IniLine& line) {
  if (!EqualIgnoringCase(line.section, "Makro")) return false;
  for (int i = 1; i <= kTableEntries; ++i)
    if (EqualIgnoringCase(line.key, "Makro" + std::to_string(i))) return true;
  return false;
}

bool IsControlPath(const IniLine& line) {
  return EqualIgnoringCase(line.section, "MERLA") && line.key.starts_with("Matrix") &&
         std::any_of(std::begin(kKeys), std::end(kKeys),
                     [&](const Key& key) { return EqualIgnoringCase(line.key, key.name); });
}

// Window, text, class and id; or id and class of a control and of its frame.
bool IsGoodPath(const IniLine& line) {
  const auto fields = runtime::Split(line.value, ';');
  constexpr std::size_t kFields = 4;
  if (fields.size() != kFields) return false;
  const bool window = EqualIgnoringCase(line.key, "MatrixJahrVonBis");
  const auto number = [](const std::string& text) { return runtime::IsNumeric(text); };
  return window ? !fields[0].empty() && number(fields[3]) : number(fields[0]) && number(fields[2]);
}

std::vector<IniLine> LinesOf(const std::string& bytes) {
  std::vector<IniLine> lines;
  const std::string text = tools::ProgramText(bytes);
  std::string_view rest = text;
  std::string section;
  for (std::size_t number = 0; !rest.empty(); ++number) {
    const std::string_view line = runtime::TakeLine(rest);
    const auto start = line.find_first_not_of(" \t");
    if (start == std::string_view::npos || line[start] == ';') continue;
    if (line[start] == '[') {
      section = Trim(line.substr(start + 1, line.find(']') - start - 1));
      continue;
    }
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    lines.push_back({number, section, Trim(line.substr(start, equals - start)), Trim(line.substr(equals + 1)),
                     {start, equals}, {equals + 1, line.size()}});
  }
  return lines;
}

// A file of a folder by its name without case, as the program's system finds it; empty when there is none.
std::string FileIn(const std::string& folder, const std::string& name) {
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(tools::PathOf(folder.empty() ? "." : folder), error))
    if (EqualIgnoringCase(tools::ProgramText(tools::NameOf(entry.path().filename())), name)) return tools::NameOf(entry.path());
  return "";
}

// Keys that a macro reads, as "section/key" in upper case.
void AddReadKeys(const Macro& macro, std::set<std::string>& keys) {
  for (const Line& line : macro.Lines())
    if (line.Is("READINI")) keys.insert(runtime::ToUpper(std::string(line.Text(1)) + "/" + std::string(line.Text(2))));
}

}  // namespace

Settings::Settings(const std::string& path)
    : folder_(tools::NameOf(tools::PathOf(path).parent_path())), lines_(LinesOf(tools::ReadFile(path))) {}

std::string Settings::Value(const std::string& section, const std::string& key, const std::string& otherwise) const {
  for (const IniLine& line : lines_)
    if (EqualIgnoringCase(line.section, section) && EqualIgnoringCase(line.key, key)) return line.value;
  return otherwise;
}

std::string Settings::MacroOf(const IniLine& line) const {
  constexpr std::size_t kFields = 6;
  std::array<std::string, kFields> fields;
  basMain::SplitString(runtime::Remove(line.value, '\''), fields);
  return runtime::Replace(fields[1], "%MerlaVersion%", Value("MERLA", "Version", ""));
}

std::vector<Finding> Settings::Check(const std::vector<const Macro*>& macros) const {
  std::vector<Finding> findings;
  std::set<std::string> read;
  for (const Macro* macro : macros) AddReadKeys(*macro, read);
  for (const IniLine& line : lines_) {
    if (!IsTableKey(line) || line.value.empty()) continue;
    const std::string name = MacroOf(line);
    const std::string file = FileIn(folder_, name);
    if (file.empty()) findings.push_back({FindingId::MissingMacro, line.number, line.valuePlace, {name, line.key}});
    else AddReadKeys(Macro(tools::ProgramText(tools::ReadFile(file))), read);
  }
  for (const IniLine& line : lines_) {
    const bool known = IsTableKey(line) || read.contains(runtime::ToUpper(line.section + "/" + line.key)) ||
                       std::any_of(std::begin(kKeys), std::end(kKeys), [&](const Key& key) {
                         return EqualIgnoringCase(line.section, key.section) && EqualIgnoringCase(line.key, key.name);
                       });
    if (!known) findings.push_back({FindingId::UnreadKey, line.number, line.keyPlace, {line.key, line.section}});
    else if (IsControlPath(line) && !line.value.empty() && !IsGoodPath(line))
      findings.push_back({FindingId::BadControlPath, line.number, line.valuePlace, {line.value, line.key}});
  }
  return findings;
}

bool Settings::StartsWithoutClient(const std::string& macroPath) const {
  const std::string name = tools::ProgramText(tools::NameOf(tools::PathOf(macroPath).filename()));
  std::vector<std::string> listed = runtime::Split(Value("Makro-Fibu", "Files", ""), ',');
  bool inTable = false;
  bool asks = std::find(std::begin(kAlwaysAsk), std::end(kAlwaysAsk), name) != std::end(kAlwaysAsk);
  for (const IniLine& line : lines_) {
    if (!IsTableKey(line) || !EqualIgnoringCase(MacroOf(line), name)) continue;
    inTable = true;
    const std::string number = line.key.substr(std::string_view("Makro").size());
    // An element that is no number counts for every entry.
    for (const std::string& element : listed)
      asks = asks || !runtime::IsNumeric(element) || runtime::ToDouble(element) == runtime::ToDouble(number);
  }
  if (!inTable) return false;
  return !asks || Value("Allgemein", "MandantenDLG", "1") != "1";
}

void CheckClientDialog(const Macro& macro, std::vector<Finding>& findings) {
  for (std::size_t i = 0; i < macro.Lines().size(); ++i) {
    const Line& line = macro.Lines()[i];
    for (const char* word : {"$FIBUPATH", "$FIBUMANDANTPATH"}) {
      const auto at = line.command.find(word);
      if (at == std::string::npos) continue;
      findings.push_back({FindingId::NoClientDialog, i, line.Place(at, at + std::string_view(word).size()), {word}});
    }
  }
}

}  // namespace makcheck
