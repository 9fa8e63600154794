// The base protocol of a language server: JSON messages behind a header that tells their length, on standard input and
// output.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace makcheck::lsp {

using Json = nlohmann::json;

// The next message; none at the end of the input. What is no JSON comes out as a discarded value (Json::is_discarded).
std::optional<Json> ReadMessage();

void WriteMessage(const Json& message);

// Standard input and output without the translation of line ends that some systems do.
void UseBinaryStreams();

}  // namespace makcheck::lsp
