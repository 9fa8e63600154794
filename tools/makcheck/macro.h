// A macro as the checker sees it: each line taken apart by the engine's own routines, with no variable replaced, and
// where its pieces stand in the file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "engine/line_form.h"
#include "engine/verbs.h"

namespace makcheck {

// Bytes of a line of the file, counted from 0.
struct Span {
  std::size_t start = 0;
  std::size_t end = 0;
};

struct Argument {
  std::string text;  // as it reaches the verb unless a variable takes its place
  std::size_t start = 0;  // in Line::command, with its quotes
  std::size_t end = 0;
  bool quoted = false;
};

struct Line {
  std::string_view raw;  // as it stands in the file, without its end
  std::string text;      // as the program keeps it
  basMain::LineForm form = basMain::LineForm::Empty;
  bool assignment = false;
  std::string name;     // of a declaration or an assignment
  std::string command;  // what is parsed: of an assignment its command, without double quotes
  std::string word;     // the verb as the dispatcher compares it
  const basMain::Verb* verb = nullptr;  // nullptr when there is none of that word
  std::vector<Argument> arguments;
  bool openQuote = false;

  // Where a piece of `command` stands in the file.
  Span Place(std::size_t start, std::size_t end) const;
  Span PlaceOf(const Argument& argument) const { return Place(argument.start, argument.end); }
  Span PlaceOfWord() const { return Place(0, word.size()); }
  // The whole line without the blanks and tabs around it.
  Span Whole() const;
  // The text of an argument counted from 1; empty when it is not given.
  std::string_view Text(std::size_t number) const;
  bool Is(std::string_view verbWord) const { return verb != nullptr && word == verbWord; }

 private:
  mutable std::vector<std::size_t> places_;  // of the characters of `command` in `raw`, once they are asked for
};

struct Variable {
  std::size_t declared = 0;  // its first line
  std::size_t declarations = 0;
  std::vector<std::size_t> assignments;  // lines
  std::vector<std::size_t> reads;
};

// Lines are counted from 0.
class Macro {
 public:
  // `text` is in the code page.
  explicit Macro(std::string text);
  Macro(const Macro&) = delete;
  Macro& operator=(const Macro&) = delete;

  const std::vector<Line>& Lines() const { return lines_; }
  const std::unordered_map<std::string, Variable>& Variables() const { return variables_; }
  // By the name in upper case, as a jump looks for it; all lines that hold the mark, in their order.
  const std::unordered_map<std::string, std::vector<std::size_t>>& Marks() const { return marks_; }

  // The variable that is declared in front of a line; nullptr for none.
  const Variable* DeclaredBefore(const std::string& name, std::size_t line) const;
  // The lines that a jump to the mark finds; empty for none.
  const std::vector<std::size_t>* FindMark(std::string_view name) const;

 private:
  void AddLine(std::string_view raw);

  std::string text_;
  std::vector<Line> lines_;
  std::unordered_map<std::string, Variable> variables_;
  std::unordered_map<std::string, std::vector<std::size_t>> marks_;
};

}  // namespace makcheck
