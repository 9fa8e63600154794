// The variables and marks of a macro and the places where they stand: for going to them, for finding and renaming them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "lsp/document.h"

namespace makcheck::lsp {

enum class NameKind { Variable, Mark };

struct Name {
  NameKind kind;
  std::string text;  // as it stands at the place that was asked for
  Range place;
};

// The variable or mark at a place.
std::optional<Name> NameAt(const Document& document, Position position);

// The place that declares it, and all places that hold it, in their order.
std::optional<Range> DeclarationOf(const Document& document, const Name& name);
std::vector<Range> PlacesOf(const Document& document, const Name& name);

// Whether a variable or mark may be called so: it survives the way through a line, and no other one is called so.
bool MayBeCalled(const Document& document, const Name& name, const std::string& text);

}  // namespace makcheck::lsp
