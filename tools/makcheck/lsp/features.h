// What the language server answers about a document. Each function takes the document and a place and yields the result
// of its request, null where there is nothing to say.
#pragma once

#include "lsp/connection.h"
#include "lsp/document.h"

namespace makcheck::lsp {

Json ToJson(const Range& range);
Range RangeFrom(const Json& json);
Position PositionFrom(const Json& json);

Json Diagnostics(const Document& document);
// Windows, ids and classes come from a desktop file where there is one.
Json Completion(const Document& document, Position position, const Desktop* desktop);
Json SignatureHelp(const Document& document, Position position);
Json Hover(const Document& document, Position position);
Json DocumentSymbols(const Document& document);
// `uri` names the document in the changes.
Json CodeActions(const Document& document, const Range& range, const std::string& uri);
// Changes the indentation alone, by the blocks that a line stands in: `width` blanks each, or a tab.
Json Formatting(const Document& document, std::size_t width, bool blanks);

}  // namespace makcheck::lsp
