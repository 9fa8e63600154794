#include "nearest.h"

#include <algorithm>
#include <array>
#include <utility>

#include "engine/built_in_variables.h"
#include "engine/verbs.h"
#include "runtime/text.h"
#include "verb_facts.h"

namespace makcheck {
namespace {

constexpr std::size_t kLongest = 40;  // of the words that are compared

// What verbs are called elsewhere, and in German.
constexpr std::pair<std::string_view, std::string_view> kElsewhere[] = {
    {"EXIT", "STOP"}, {"QUIT", "STOP"},  {"END", "STOP"},   {"ENDE", "STOP"},  {"PAUSE", "WAIT"},     {"WARTE", "WAIT"},
    {"WARTEN", "WAIT"}, {"PRINT", "MSG"}, {"ECHO", "MSG"},  {"MSGBOX", "MSG"}, {"MELDUNG", "MSG"},    {"MARKE", "MARK"},
    {"SPRINGE", "GOTO"}, {"JUMP", "GOTO"}, {"RUN", "EXEC"}, {"START", "EXEC"}, {"WAITFORBOX", "WAITFORDIALOG"},
};

// A third of the letters may be wrong.
std::size_t Tolerance(std::string_view word) { return std::clamp<std::size_t>(word.size() / 3, 1, 4); }

std::vector<std::string> WordsOfVerbs(bool yielding) {
  std::vector<std::string> words;
  for (const basMain::Verb& verb : basMain::Verbs())
    if (!yielding || Yields(verb)) words.emplace_back(verb.word);
  return words;
}

const std::vector<std::string>& VerbWords(bool yielding) {
  static const auto kAll = WordsOfVerbs(false);
  static const auto kYielding = WordsOfVerbs(true);
  return yielding ? kYielding : kAll;
}

}  // namespace

std::size_t Distance(std::string_view a, std::string_view b, std::size_t limit) {
  const std::size_t longer = std::max(a.size(), b.size());
  if (longer - std::min(a.size(), b.size()) > limit || longer > kLongest) return limit + 1;
  std::array<std::array<std::size_t, kLongest + 1>, 3> rows{};
  for (std::size_t j = 0; j <= b.size(); ++j) rows[0][j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    auto& row = rows[i % 3];
    const auto& above = rows[(i + 2) % 3];
    const auto& twoAbove = rows[(i + 1) % 3];
    row[0] = i;
    std::size_t best = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
      const bool exchanged = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (exchanged) row[j] = std::min(row[j], twoAbove[j - 2] + 1);
      best = std::min(best, row[j]);
    }
    if (best > limit) return limit + 1;
  }
  return rows[a.size() % 3][b.size()];
}

std::string Nearest(std::string_view word, std::span<const std::string> candidates) {
  const std::string wanted = runtime::ToUpper(runtime::Trim(word));
  std::size_t limit = Tolerance(wanted);
  std::string nearest;
  for (const std::string& candidate : candidates) {
    if (std::max(wanted.size(), candidate.size()) > std::min(wanted.size(), candidate.size()) + limit) continue;
    const std::size_t distance = Distance(wanted, runtime::ToUpper(candidate), limit);
    if (distance > limit) continue;
    nearest = candidate;
    if (distance == 0) break;
    limit = distance - 1;
  }
  return nearest;
}

std::string NearestVerb(std::string_view word, bool yielding) {
  const std::string wanted = runtime::ToUpper(runtime::Trim(word));
  if (wanted.empty()) return "";
  if (!yielding)
    for (const auto& [other, verb] : kElsewhere)
      if (wanted == other) return std::string(verb);
  if (std::string near = Nearest(wanted, VerbWords(yielding)); !near.empty()) return near;
  constexpr std::size_t kTelling = 4;  // letters that say something
  if (wanted.size() < kTelling) return "";
  for (const std::string& verb : VerbWords(yielding))
    if (verb.starts_with(wanted) || verb.ends_with(wanted)) return verb;
  return "";
}

std::string NearestDollarWord(std::string_view word) {
  static const auto kNames = [] {
    std::vector<std::string> names;
    for (const basMain::BuiltInVariable& variable : basMain::BuiltInVariables()) names.emplace_back(variable.name);
    return names;
  }();
  return Nearest(word, kNames);
}

}  // namespace makcheck
