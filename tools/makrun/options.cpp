#include "options.h"

#include <chrono>
#include <cstdio>
#include <limits>
#include <type_traits>

#include "common/tool.h"
#include "texts.h"

namespace makrun {
namespace {

using tools::Say;
using tools::UsageError;

// "2006-03-14 09:30:00"
runtime::DateTime ReadTime(const std::string& text) {
  runtime::DateTime time;
  int length = 0;
  const int count = std::sscanf(text.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &time.year, &time.month, &time.day,
                                &time.hour, &time.minute, &time.second, &length);
  const std::chrono::year_month_day date{std::chrono::year(time.year), std::chrono::month(time.month),
                                         std::chrono::day(time.day)};
  const bool inDay =
      time.hour >= 0 && time.hour < 24 && time.minute >= 0 && time.minute < 60 && time.second >= 0 && time.second < 60;
  if (count != 6 || static_cast<std::size_t>(length) != text.size() || time.year < 100 || !date.ok() || !inDay)
    throw UsageError{Say(say::kWantsTime, {text})};
  return time;
}

// "FORM.CONTROL" or "FORM.CONTROL=TEXT"
Answer ReadAnswer(const std::string& text) {
  const auto equals = text.find('=');
  const std::string name = text.substr(0, equals);
  const auto point = name.find('.');
  if (point == std::string::npos || point == 0 || point + 1 == name.size())
    throw UsageError{Say(say::kWantsAnswer, {text})};
  return {name.substr(0, point), name.substr(point + 1), equals == std::string::npos ? "" : text.substr(equals + 1)};
}

bool ReadFamily(const std::string& text) {
  if (text == "nt" || text == "9x") return text == "nt";
  throw UsageError{Say(say::kWantsFamily, {text})};
}

}  // namespace

Options ReadOptions(const std::vector<std::string>& arguments) {
  using Value = const std::string&;
  Options options;
  tools::CommandLine line;
  const auto path = [&](const std::string& name, std::string& taken) {
    line.Setting(name, [name, &taken](Value value) { taken = tools::ReadSome(name, value); });
  };
  const auto number = [&](const std::string& name, auto& taken, std::int64_t highest) {
    line.Setting(name, [name, &taken, highest](Value value) {
      taken = static_cast<std::remove_reference_t<decltype(taken)>>(tools::ReadNumber(name, value, highest));
    });
  };
  path("--desktop", options.desktop);
  path("--ini", options.ini);
  path("--drive", options.drive);
  path("--clipboard", options.clipboard);
  number("--resume", options.resumes, 1'000'000);
  // Events of the simulated desktop lie at most 2^31 milliseconds ahead.
  number("--time-limit", options.timeLimit, 2'000'000);
  number("--line-limit", options.lineLimit, std::numeric_limits<std::int64_t>::max());
  line.Setting("--caption", [&](Value value) { options.caption = value; });
  line.Setting("--answer", [&](Value value) { options.answers.push_back(ReadAnswer(value)); });
  line.Setting("--now", [&](Value value) { options.now = ReadTime(value); });
  line.Setting("--family", [&](Value value) { options.nt = ReadFamily(value); });
  line.Flag("--press", options.press);
  line.Flag("--real-time", options.realTime);
  line.Flag("--trace", options.trace);
  line.Flag("--list-verbs", options.listVerbs);

  const std::vector<std::string> macros = line.Read(arguments);
  options.help = line.Help();
  if (macros.size() > 1) throw UsageError{Say(say::kOneMacro, {macros[0], macros[1]})};
  if (!macros.empty()) options.macro = macros[0];
  if (options.macro.empty() && !options.help && !options.listVerbs) throw UsageError{Say(say::kNoMacro)};
  return options;
}

}  // namespace makrun
