#include "filled_text.h"

#include <charconv>

#include "platform/messages.h"
#include "platform/simulated/desktop.h"

namespace makrun {
namespace {

namespace simulated = platform::simulated;

std::string Joined(const std::vector<std::string>& parts, const std::string& separator) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) text += (i == 0 ? "" : separator) + parts[i];
  return text;
}

// What a control shows; of a list, its rows: cells parted by tabs, rows by line ends.
std::string Shown(const simulated::Window& window) {
  std::string text = window.text;
  for (const simulated::ListRow& row : window.rows) text += (text.empty() ? "" : "\r\n") + Joined(row.columns, "\t");
  return text;
}

// The cell of the first selected row, by its column from 0; empty without one.
std::string SelectedCell(const simulated::Window& list, std::size_t column) {
  for (const simulated::ListRow& row : list.rows)
    if ((row.state & platform::LVIS_SELECTED) != 0) return column < row.columns.size() ? row.columns[column] : "";
  return "";
}

std::optional<std::size_t> Number(const std::string& text) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

}  // namespace

FilledText::FilledText(const std::string& text, const Resolve& resolve) {
  std::size_t from = 0;
  for (auto open = text.find('{'); open != std::string::npos; open = text.find('{', from)) {
    const auto close = text.find('}', open);
    if (close == std::string::npos) break;
    const std::string reference = text.substr(open + 1, close - open - 1);
    const auto slash = reference.find('/');
    Piece piece{text.substr(from, open - from), resolve(reference.substr(0, slash))};
    if (slash != std::string::npos) piece.column = Number(reference.substr(slash + 1));
    if (piece.plan == nullptr || (slash != std::string::npos && !piece.column)) throw WrongReference{reference};
    pieces_.push_back(std::move(piece));
    from = close + 1;
  }
  pieces_.push_back({text.substr(from)});
}

std::string FilledText::Now() const {
  std::string text;
  for (const Piece& piece : pieces_) {
    text += piece.text;
    const std::int32_t window = piece.plan == nullptr ? 0 : scene.Find(*piece.plan);
    if (window == 0) continue;
    text += piece.column ? SelectedCell(simulated::At(window), *piece.column) : Shown(simulated::At(window));
  }
  return text;
}

}  // namespace makrun
