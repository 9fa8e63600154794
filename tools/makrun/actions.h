// What the windows of a desktop file do when something happens to them.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "arguments.h"
#include "desktop_text.h"
#include "scene.h"

namespace makrun {

// The lines as a text, each ended by CR LF.
std::string LinesText(const std::vector<std::string>& lines);

// Makes actions of the statements below an event. Faults: FileError with file, line and what was expected.
class ActionReader {
 public:
  // Both outlive this object: the file, and the names of all its windows.
  ActionReader(const std::string& path, const std::set<std::string>& names) : path_(path), names_(names) {}

  // The actions below a statement; there must be one.
  std::vector<Action> Read(const Statement& statement) const;

 private:
  Action ReadAction(const Statement& statement, Arguments& arguments) const;
  Action ReadDelay(const Statement& statement, Arguments& arguments) const;
  Action ReadCondition(const Statement& statement, Arguments& arguments) const;
  Action Open(Arguments& arguments) const;
  Action Close(Arguments& arguments) const;
  Action Show(Arguments& arguments) const;
  Action Hide(Arguments& arguments) const;
  Action SetText(Arguments& arguments) const;
  Action SetItems(Arguments& arguments) const;
  Action Select(Arguments& arguments) const;
  Action Check(Arguments& arguments) const;
  Action Uncheck(Arguments& arguments) const;
  Action AddRow(Arguments& arguments) const;
  Action ClearRows(Arguments& arguments) const;
  Action SelectRows(Arguments& arguments) const;
  Action Clipboard(Arguments& arguments) const;
  Action Write(Arguments& arguments) const;
  Action Append(Arguments& arguments) const;
  Action Grow(Arguments& arguments) const;
  std::string KnownName(Arguments& arguments) const;
  // "NAME" or "NAME.ID", with the ids of frames in between.
  Target ReadTarget(Arguments& arguments) const;

  const std::string& path_;
  const std::set<std::string>& names_;
};

}  // namespace makrun
