// A text of a desktop file in which references in braces stand for what windows show.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "scene.h"

namespace makrun {

class FilledText {
 public:
  // The window or control of "NAME.ID"; null where the file has none.
  using Resolve = std::function<const WindowPlan*(const std::string& target)>;

  // Takes "{NAME.ID}" and "{NAME.ID/COLUMN}" for references. A brace that is not closed is text.
  // Faults: WrongReference.
  FilledText(const std::string& text, const Resolve& resolve);

  struct WrongReference {
    std::string text;  // what stands in the braces
  };

  // The text with what the windows show at the moment; empty for a window that is not open.
  std::string Now() const;

 private:
  // Some text, and the reference behind it, if there is one.
  struct Piece {
    std::string text;
    const WindowPlan* plan = nullptr;
    std::optional<std::size_t> column = {};  // a cell of a list view's selected row
  };

  std::vector<Piece> pieces_;
};

}  // namespace makrun
