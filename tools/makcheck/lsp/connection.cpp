#include "lsp/connection.h"

#include <charconv>
#include <cstdio>
#include <string_view>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace makcheck::lsp {
namespace {

// Without the line end; none at the end of the input.
std::optional<std::string> ReadHeaderLine() {
  std::string line;
  for (int c = std::getchar(); c != EOF; c = std::getchar()) {
    if (c == '\n') {
      if (line.ends_with('\r')) line.pop_back();
      return line;
    }
    line += static_cast<char>(c);
  }
  return std::nullopt;
}

constexpr std::string_view kLength = "Content-Length: ";
constexpr std::size_t kLongest = 256 << 20;  // bytes of a message that anybody can mean

}  // namespace

std::optional<Json> ReadMessage() {
  std::size_t length = 0;
  for (;;) {
    const auto line = ReadHeaderLine();
    if (!line) return std::nullopt;
    if (line->empty()) break;
    if (line->starts_with(kLength)) std::from_chars(line->data() + kLength.size(), line->data() + line->size(), length);
  }
  if (length > kLongest) return std::nullopt;
  std::string body(length, '\0');
  if (std::fread(body.data(), 1, length, stdin) != length) return std::nullopt;
  return Json::parse(body, nullptr, false);
}

void WriteMessage(const Json& message) {
  const std::string body = message.dump(-1, ' ', false, Json::error_handler_t::replace);
  std::printf("Content-Length: %zu\r\n\r\n", body.size());
  std::fwrite(body.data(), 1, body.size(), stdout);
  std::fflush(stdout);
}

void UseBinaryStreams() {
#ifdef _WIN32
  ::_setmode(0, _O_BINARY);
  ::_setmode(1, _O_BINARY);
#endif
}

}  // namespace makcheck::lsp
