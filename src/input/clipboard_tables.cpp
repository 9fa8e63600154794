#include "input/clipboard_tables.h"

#include <algorithm>
#include <cstddef>

#include "runtime/fault.h"

namespace clipboard_tables {
namespace {

constexpr char kLineEnd[] = "\r\n";

// Takes the first piece off a text: what stands in front of the separator, which goes as well.
std::string_view TakeUpTo(char separator, std::string_view& text) {
  const std::size_t end = text.find(separator);
  const std::string_view piece = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return piece;
}

std::string_view TakeLine(std::string_view& text) {
  const std::string_view line = TakeUpTo('\r', text);
  if (text.starts_with('\n')) text.remove_prefix(1);
  return line;
}

std::size_t Count(std::string_view text, char character) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), character));
}

void AppendField(std::string& result, std::string_view text) {
  result += '"';
  result += text;
  result += "\";";
}

// Calls with the position and the text of each cell; an empty line has none.
template <class Take>
void ForEachCell(std::string_view line, Take take) {
  if (line.empty()) return;
  const std::size_t last = Count(line, '\t');
  for (std::size_t cell = 0; cell <= last; ++cell) take(cell, TakeUpTo('\t', line));
}

void AppendAmount(std::string& record, std::string_view amount) {
  record += '"';
  std::copy_if(amount.begin(), amount.end(), std::back_inserter(record), [](char c) { return c != '.'; });
  record += "\";";
}

void AppendCell(std::string& record, std::size_t cell, std::string_view text) {
  constexpr std::size_t kPurpose = 1, kAmount = 3;
  if (cell == kPurpose) AppendTextFields(record, text);
  else if (cell == kAmount) AppendAmount(record, text);
  else AppendField(record, text);
}

}  // namespace

std::string QuoteCells(std::string_view table) {
  constexpr std::size_t kAroundCell = 3, kAroundLine = 2;
  std::string result;
  // One piece of memory from the start: the text is large, and growing would hold it several times.
  result.reserve(table.size() + kAroundCell * Count(table, '\t') +
                 (kAroundCell + kAroundLine) * (Count(table, '\r') + 1));
  while (!table.empty()) {
    const std::string_view line = TakeLine(table);
    if (line.find('\t') == std::string_view::npos) result += line;
    else ForEachCell(line, [&](std::size_t, std::string_view cell) { AppendField(result, cell); });
    result += kLineEnd;
  }
  return result;
}

void AppendTextFields(std::string& record, std::string_view purpose) {
  constexpr std::size_t kLength = 27, kMostPieces = 12, kFields = 12;
  const std::size_t pieces = purpose.size() / kLength;
  for (std::size_t i = 0; i < std::min(pieces, kMostPieces); ++i)
    AppendField(record, purpose.substr(i * kLength, kLength));
  if (pieces <= kMostPieces) AppendField(record, purpose.substr(pieces * kLength));
  if (pieces + 1 < kFields) record.append(kFields - 1 - pieces, ';');
}

std::string StatementRecords(std::string_view table, std::string_view konto, std::string_view blz) {
  if (table.empty()) throw runtime::Fault(runtime::FaultNumber::InputPastEnd);
  TakeLine(table);
  constexpr std::size_t kAroundCell = 3, kAroundTextFields = 13 * kAroundCell;
  std::string result;
  result.reserve(table.size() + kAroundCell * Count(table, '\t') +
                 (kAroundTextFields + konto.size() + blz.size() + 2 * kAroundCell) * (Count(table, '\r') + 1));
  while (!table.empty()) {
    ForEachCell(TakeLine(table), [&](std::size_t cell, std::string_view text) { AppendCell(result, cell, text); });
    result += ';';
    result += konto;
    result += ';';
    result += blz;
    result += kLineEnd;
  }
  return result;
}

}  // namespace clipboard_tables
