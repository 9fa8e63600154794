#include "lsp/document.h"

#include <algorithm>
#include <utility>

#include "checker.h"
#include "runtime/code_page.h"
#include "runtime/text.h"

namespace makcheck::lsp {

std::string FromEditor(std::string_view text) {
  constexpr unsigned char kFirstOfFour = 0xF0;
  std::string narrow;
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (static_cast<unsigned char>(text[i]) < kFirstOfFour) continue;
    narrow += runtime::FromUtf8(text.substr(start, i - start)) + "??";
    start = std::min(i + 4, text.size());
  }
  return narrow + runtime::FromUtf8(text.substr(start));
}

void Document::Take(std::string text) {
  text_ = std::move(text);
  lineStarts_.assign(1, 0);
  std::string_view rest = text_;
  while (!rest.empty()) {
    runtime::TakeLine(rest);
    lineStarts_.push_back(text_.size() - rest.size());
  }
  // A text without a line end behind its last line has no line behind that one.
  if (!text_.empty() && text_.back() != '\n' && text_.back() != '\r') lineStarts_.pop_back();
  macro_ = std::make_unique<makcheck::Macro>(text_);
}

void Document::Check(const Desktop* desktop) { findings_ = CheckMacro(*macro_, desktop); }

void Document::Change(const Range& range, std::string_view text) {
  const std::size_t start = OffsetOf(range.start);
  const std::size_t end = std::max(start, OffsetOf(range.end));
  std::string changed = text_.substr(0, start);
  changed.append(text);
  changed.append(text_, end);
  Take(std::move(changed));
}

std::size_t Document::OffsetOf(Position position) const {
  if (position.line >= lineStarts_.size()) return text_.size();
  const auto& lines = macro_->Lines();
  const std::size_t length = position.line < lines.size() ? lines[position.line].raw.size() : 0;
  return lineStarts_[position.line] + std::min(position.column, length);
}

Cursor Document::At(Position position) const {
  Cursor cursor;
  const auto& lines = macro_->Lines();
  if (position.line >= lines.size()) return cursor;
  const Line& line = lines[position.line];
  cursor.line = &line;
  cursor.column = std::min(position.column, line.raw.size());
  const std::size_t indentation = std::min(line.raw.find_first_not_of(" \t"), cursor.column);
  const std::size_t command = line.assignment ? line.raw.find('=') + 1 : indentation;
  cursor.beforeStart = command <= cursor.column ? command : indentation;
  cursor.before = line.raw.substr(cursor.beforeStart, cursor.column - cursor.beforeStart);
  if (line.form != basMain::LineForm::Statement || command > cursor.column) return cursor;
  const auto opening = cursor.before.find(line.assignment ? '(' : '=');
  if (opening == std::string_view::npos) return cursor;
  cursor.inArguments = true;
  cursor.argumentStart = cursor.beforeStart + opening + 1;
  bool quoted = false;
  for (std::size_t i = cursor.argumentStart; i < cursor.column; ++i) {
    if (line.raw[i] == '\'') quoted = !quoted;
    if (line.raw[i] != ',' || quoted) continue;
    ++cursor.argument;
    cursor.argumentStart = i + 1;
  }
  return cursor;
}

}  // namespace makcheck::lsp
