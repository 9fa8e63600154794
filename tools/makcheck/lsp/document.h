// A macro that is open in an editor. The text is kept in the code page: each of its characters is one byte here and one
// unit of an editor's column, so that columns are the same on both sides.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "desktop.h"
#include "finding.h"
#include "macro.h"

namespace makcheck::lsp {

// Lines and columns are counted from 0.
struct Position {
  std::size_t line = 0;
  std::size_t column = 0;
};

struct Range {
  Position start;
  Position end;
};

// Text of an editor, in UTF-8, in the code page: what is two units in a column becomes two characters.
std::string FromEditor(std::string_view text);

// What stands at a place of a line.
struct Cursor {
  const Line* line = nullptr;  // nullptr behind the last line
  std::size_t column = 0;
  std::string_view before;    // the line from behind its indentation, and behind "name=" of an assignment, to the cursor
  std::size_t beforeStart = 0;  // its column
  bool inArguments = false;
  std::size_t argument = 0;       // counted from 0
  std::size_t argumentStart = 0;  // its column
};

class Document {
 public:
  explicit Document(std::string text) { Take(std::move(text)); }

  // Puts a text in the place of a range; a range beyond the text ends with it.
  void Change(const Range& range, std::string_view text);
  void Take(std::string text);

  // Looks for mistakes anew, also against the windows of a desktop file where there is one.
  void Check(const Desktop* desktop);

  const makcheck::Macro& Macro() const { return *macro_; }
  const std::vector<Finding>& Findings() const { return findings_; }
  Cursor At(Position position) const;

 private:
  std::size_t OffsetOf(Position position) const;

  std::string text_;
  std::vector<std::size_t> lineStarts_;
  std::unique_ptr<makcheck::Macro> macro_;
  std::vector<Finding> findings_;
};

}  // namespace makcheck::lsp
