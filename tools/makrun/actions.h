// What the windows of a desktop file do when something happens to them.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "arguments.h"
#include "desktop_text.h"
#include "filled_text.h"
#include "scene.h"

namespace makrun {

// The lines as a text, each ended by CR LF.
std::string LinesText(const std::vector<std::string>& lines);

// Makes actions of the statements below an event. Faults: FileError with file, line and what was expected.
class ActionReader {
 public:
  // Both outlive this object and the actions: the file, and all its windows with their controls.
  ActionReader(const std::string& path, const std::map<std::string, WindowPlan>& plans) : path_(path), plans_(plans) {}

  // The actions below a statement; there must be one.
  std::vector<Action> Read(const Statement& statement) const;
  // "after" and its actions, as one action that schedules them.
  Action ReadDelay(const Statement& statement, Arguments& arguments) const;

 private:
  Action ReadAction(const Statement& statement, Arguments& arguments) const;
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
  Action Copy(Arguments& arguments) const;
  std::string KnownName(Arguments& arguments) const;
  const WindowPlan& ReadTarget(Arguments& arguments) const;
  // The window or control of "NAME" or "NAME.ID", with the ids of frames in between; null where it is not there.
  const WindowPlan* Resolve(const std::string& target) const;
  FilledText Filled(const Arguments& arguments, const std::string& text) const;

  const std::string& path_;
  const std::map<std::string, WindowPlan>& plans_;
};

}  // namespace makrun
