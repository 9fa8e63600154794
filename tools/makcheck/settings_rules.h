// The settings file against the program and the macros that it names.
#pragma once

#include <string>
#include <vector>

#include "finding.h"

namespace makcheck {

struct IniLine {
  std::size_t number = 0;  // counted from 0
  std::string section;
  std::string key;
  std::string value;
  Span keyPlace;
  Span valuePlace;
};

class Settings {
 public:
  // Faults: tools::FileError.
  explicit Settings(const std::string& path);

  // What is wrong in the file itself; keys that the given macros read count as read, and so do those that the macros of
  // its table read.
  std::vector<Finding> Check(const std::vector<const Macro*>& macros) const;

  // Whether the table names the macro and shows it without the dialog for client and year.
  bool StartsWithoutClient(const std::string& macroPath) const;

 private:
  std::string Value(const std::string& section, const std::string& key, const std::string& otherwise) const;
  // The file that an entry of the table names.
  std::string MacroOf(const IniLine& line) const;

  std::string folder_;
  std::vector<IniLine> lines_;
};

// Adds what a macro uses and its settings do not give.
void CheckClientDialog(const Macro& macro, std::vector<Finding>& findings);

}  // namespace makcheck
