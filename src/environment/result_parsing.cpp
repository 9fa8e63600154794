#include "environment/result_parsing.h"

#include <algorithm>
#include <limits>

#include "automation/state.h"
#include "clients/state.h"
#include "engine/standard_handler.h"
#include "environment/discovery.h"
#include "environment/paths.h"
#include "frame/log.h"
#include "runtime/fault.h"
#include "runtime/format_value.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using runtime::Fault;
using runtime::FaultNumber;

// In the order of their removal; the number is that of the target's message.
constexpr const char* kFixedWords[] = {"\r", "\n", "Die Daten wurden erfolgreich exportiert und in ", "#AN12008",
                                       " abgelegt."};

std::string FirstDayOfCurrentRow() {
  const auto row = static_cast<std::size_t>(clients.MatrixPos);
  if (row >= clients.Matrix.size()) throw Fault(FaultNumber::OutOfRange);
  return runtime::FormatValue(DateOf(clients.Matrix[row].Beginn), "ddmmyyyy");
}

// The text between two neighbouring backslashes, the left one counted from the end.
std::string FolderBehind(const std::string& path, std::int16_t backslash) {
  const std::int16_t from = FindBackslashFromEnd(path, '\\', backslash);
  const std::int16_t to = FindBackslashFromEnd(path, '\\', static_cast<std::int16_t>(backslash - 1));
  if (from == 0 || to == 0) throw Fault(FaultNumber::InvalidCall);
  return path.substr(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from - 1));
}

std::string AssetPath(const std::string& path) {
  const std::string base = basAPI::JoinPath(GetTeRuDestination(), "Extern");
  const std::string date = FirstDayOfCurrentRow();
  // Both folders need all four backslashes.
  const std::string consultant = StripLeadingZeros(FolderBehind(path, 4));
  const std::string client = StripLeadingZeros(FolderBehind(path, 3));
  return basAPI::JoinPath(base, "Berater-" + consultant, client, "Anl", date);
}

std::string WithoutFixedWords(std::string text) {
  for (const char* words : kFixedWords) text = runtime::Replace(text, words, "");
  return text;
}

std::string Parsed(const std::string& text, const std::string& mode) {
  if (mode == "ANL") return AssetPath(text);
  if (mode == "ANLPATH") return WithoutFixedWords(text);
  return text;
}

}  // namespace

bool Parse(const std::string& text, const std::string& mode) {
  return Standard("Parse", [&] {
    automation.LastReadText = Parsed(text, runtime::ToUpper(mode));
    LogWrite("Parse: " + automation.LastReadText);
    return true;
  });
}

std::int16_t FindBackslashFromEnd(const std::string& text, char character, std::int16_t n) {
  std::int32_t found = 0;
  for (std::size_t place = text.size(); place > 0; --place) {
    if (text[place - 1] != character || ++found != n) continue;
    return place <= std::numeric_limits<std::int16_t>::max() ? static_cast<std::int16_t>(place) : std::int16_t{0};
  }
  return 0;
}

std::string StripLeadingZeros(const std::string& text) {
  return text.substr(std::min(text.find_first_not_of('0'), text.size()));
}

}  // namespace basMain
