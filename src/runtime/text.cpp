#include "runtime/text.h"

#include <algorithm>

#include "runtime/fault.h"

namespace runtime {
namespace {

constexpr unsigned char UpperByte(unsigned char c) {
  if ((c >= 'a' && c <= 'z') || (c >= 0xE0 && c <= 0xFE && c != 0xF7)) return c - 0x20;
  if (c == 0x9A || c == 0x9C || c == 0x9E) return c - 0x10;
  return c == 0xFF ? 0x9F : c;
}

constexpr unsigned char LowerByte(unsigned char c) {
  if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) return c + 0x20;
  if (c == 0x8A || c == 0x8C || c == 0x8E) return c + 0x10;
  return c == 0x9F ? 0xFF : c;
}

bool SameIgnoringCase(char a, char b) {
  return UpperByte(static_cast<unsigned char>(a)) == UpperByte(static_cast<unsigned char>(b));
}

}  // namespace

std::string ToUpper(std::string_view text) {
  std::string result(text);
  for (char& c : result) c = static_cast<char>(UpperByte(static_cast<unsigned char>(c)));
  return result;
}

std::string ToLower(std::string_view text) {
  std::string result(text);
  for (char& c : result) c = static_cast<char>(LowerByte(static_cast<unsigned char>(c)));
  return result;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), SameIgnoringCase);
}

bool Contains(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  return part.empty() ||
         std::search(text.begin(), text.end(), part.begin(), part.end(), SameIgnoringCase) != text.end();
}

std::string Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string Replace(std::string_view text, std::string_view what, std::string_view with) {
  if (what.empty()) return std::string(text);
  std::string result;
  std::size_t from = 0;
  for (auto at = text.find(what); at != std::string_view::npos; at = text.find(what, from)) {
    result.append(text, from, at - from).append(with);
    from = at + what.size();
  }
  return result.append(text, from);
}

std::string Left(std::string_view text, std::int32_t count) {
  if (count < 0) throw Fault(FaultNumber::InvalidCall);
  return std::string(text.substr(0, static_cast<std::size_t>(count)));
}

std::string Remove(std::string_view text, char character) {
  std::string result(text);
  std::erase(result, character);
  return result;
}

std::vector<std::string> Split(std::string_view text, char separator) {
  return Split(text, std::string_view(&separator, 1));
}

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  if (separator.empty()) return {std::string(text)};
  std::size_t from = 0;
  for (auto at = text.find(separator); at != std::string_view::npos; at = text.find(separator, from)) {
    pieces.emplace_back(text.substr(from, at - from));
    from = at + separator.size();
  }
  pieces.emplace_back(text.substr(from));
  return pieces;
}

const std::string& Element(const std::vector<std::string>& pieces, std::size_t index) {
  if (index >= pieces.size()) throw Fault(FaultNumber::OutOfRange);
  return pieces[index];
}

std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end);
  text.remove_prefix(text.starts_with("\r\n") ? 2 : text.empty() ? 0 : 1);
  return line;
}

std::string TrimAtNul(std::string_view text) { return std::string(text.substr(0, text.find('\0'))); }

std::string TruthText(bool value) { return value ? "True" : "False"; }

}  // namespace runtime
