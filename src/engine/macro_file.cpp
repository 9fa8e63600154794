#include "engine/macro_file.h"

#include <string_view>

#include "engine/line_form.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "platform/files.h"
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

// Appends what the file still holds to `text`, as much as can be read.
void ReadAll(std::int32_t file, std::string& text) {
  constexpr std::size_t kPiece = 1 << 20;
  std::string piece(kPiece, '\0');
  while (const std::size_t got = platform::ReadFile(file, piece.data(), piece.size())) text.append(piece, 0, got);
}

}  // namespace

bool LoadFile(const std::string& path) {
  run.MakroLines.assign(1, "");
  run.LineCount = 0;
  run.Marks.clear();
  run.UserVariables = {};
  return Standard("LoadFile", [&] {
    const std::int32_t file = platform::OpenFile(path, platform::FileMode::Read);
    std::string text;
    const bool whole = Standard("LoadFile", [&] {
      ReadAll(file, text);
      return true;
    });
    // In front of a fault stand lines that are good, but for one that was not read to its end.
    if (!whole) text.erase(text.find_last_of("\r\n") + 1);
    AddLines(text);
    platform::CloseFile(file);
    return false;
  });
}

}  // namespace basMain
