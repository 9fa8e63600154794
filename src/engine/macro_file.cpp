#include "engine/macro_file.h"

#include <string_view>
#include <utility>
#include <vector>

#include "engine/line_form.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "platform/files.h"
#include "runtime/fault.h"
#include "runtime/text.h"

namespace basMain {
namespace {

void AddLine(std::string_view line) {
  run.MakroLines.back() = NormalisedLine(line);
  const std::string key = MarkKey(run.MakroLines.back());
  if (IsMark(key)) run.Marks.try_emplace(key, run.LineCount);
  run.MakroLines.emplace_back();
  ++run.LineCount;
}

void AddLines(std::string_view text) {
  while (!text.empty()) AddLine(runtime::TakeLine(text));
}

// Adds the lines of a file. `rest` holds those, and the start of one, that no line end closes for certain yet.
void ReadLines(std::int32_t file, std::string& rest) {
  constexpr std::size_t kPiece = 1 << 20;
  std::string piece(kPiece, '\0');
  while (const std::size_t got = platform::ReadFile(file, piece.data(), piece.size())) {
    const auto read = std::string_view(piece).substr(0, got);
    // A carriage return at the end of the piece may be half of a line end.
    const std::size_t whole = read.substr(0, read.ends_with('\r') ? got - 1 : got).find_last_of("\r\n") + 1;
    rest += read.substr(0, whole);
    if (whole > 0) AddLines(std::exchange(rest, ""));
    rest += read.substr(whole);
  }
  AddLines(rest);
}

// Gives back what an earlier macro took.
void EmptyTable() {
  run.MakroLines = std::vector<std::string>(1);
  run.LineCount = 0;
  run.Marks = {};
}

}  // namespace

bool LoadFile(const std::string& path) {
  EmptyTable();
  run.UserVariables = {};
  run.MakroTooLarge = false;
  return Standard("LoadFile", [&] {
    const std::int32_t file = platform::OpenFile(path, platform::FileMode::Read);
    std::string rest;
    try {
      ReadLines(file, rest);
    } catch (...) {
      const runtime::Fault fault = runtime::CaughtFault();
      run.LastError = StandardErrorText("LoadFile", fault);
      run.MakroTooLarge = fault.number == runtime::FaultNumber::OutOfMemory;
      if (run.MakroTooLarge) EmptyTable();
      // In front of another fault stand lines that are good, but for one that was not read to its end.
      else AddLines(std::string_view(rest).substr(0, rest.find_last_of("\r\n") + 1));
    }
    platform::CloseFile(file);
    return false;
  });
}

}  // namespace basMain
