#include "options.h"

#include <charconv>
#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <map>

namespace makrun {
namespace {

template <class Number>
Number ReadNumber(const std::string& option, const std::string& text, Number highest) {
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number < 0 || number > highest)
    throw UsageError{option + " wants a number from 0 to " + std::to_string(highest) + ", not \"" + text + "\""};
  return number;
}

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
    throw UsageError{"--now wants a time such as \"2006-03-14 09:30:00\", not \"" + text + "\""};
  return time;
}

// "FORM.CONTROL" or "FORM.CONTROL=TEXT"
Answer ReadAnswer(const std::string& text) {
  const auto equals = text.find('=');
  const std::string name = text.substr(0, equals);
  const auto point = name.find('.');
  if (point == std::string::npos || point == 0 || point + 1 == name.size())
    throw UsageError{"--answer wants FORM.CONTROL or FORM.CONTROL=TEXT, not \"" + text + "\""};
  return {name.substr(0, point), name.substr(point + 1), equals == std::string::npos ? "" : text.substr(equals + 1)};
}

// A file or folder; the empty text would stand for an option that is not given.
std::string ReadPath(const std::string& option, const std::string& text) {
  if (text.empty()) throw UsageError{option + " wants a value"};
  return text;
}

bool ReadFamily(const std::string& text) {
  if (text == "nt" || text == "9x") return text == "nt";
  throw UsageError{"--family wants nt or 9x, not \"" + text + "\""};
}

}  // namespace

const char* const kUsage =
    "usage: makrun [options] MACRO.MAK\n"
    "Runs a macro on a simulated desktop and prints the log of the run.\n"
    "\n"
    "  --desktop FILE          the windows that the macro meets; without it one main window\n"
    "  --caption TEXT          caption of that main window; default \"TeRu - 0012 / 4711 / 2005 / Probelauf\"\n"
    "  --ini FILE              settings; default QUMAEXP.INI beside the macro, none if it is not there\n"
    "  --drive DIR             folder that stands for drive C: and is kept; default a temporary one\n"
    "  --press                 start as the hot key does instead of running the macro directly\n"
    "  --answer FORM.CONTROL=TEXT\n"
    "                          what the user does in a dialog, in order; FORM.cmdOK and FORM.cmdCancel press\n"
    "  --clipboard FILE        text that is on the clipboard at the start\n"
    "  --resume N              go on behind a failed line, N times at most; default 0\n"
    "  --now \"2006-03-14 09:30:00\"\n"
    "                          the clock at the start\n"
    "  --family nt|9x          the Windows family; default nt\n"
    "  --time-limit SECONDS    simulated seconds after which the user cancels; default 3600\n"
    "  --line-limit N          visited lines after which the rehearsal is given up; default 10000000\n"
    "  --real-time             sleep in real time\n"
    "  --trace                 each visited line, its verb and arguments, on standard error\n"
    "  --help                  this text\n"
    "\n"
    "Exit status: 0 completed, 1 failed, 2 stopped or given up, 64 wrong command line, 66 a file cannot be read.\n";

Options ReadOptions(const std::vector<std::string>& arguments) {
  Options options;
  const std::map<std::string, std::function<void()>> flags = {
      {"--press", [&] { options.press = true; }},
      {"--real-time", [&] { options.realTime = true; }},
      {"--trace", [&] { options.trace = true; }},
      {"--help", [&] { options.help = true; }},
  };
  using Text = const std::string&;
  const std::map<std::string, std::function<void(Text)>> settings = {
      {"--desktop", [&](Text text) { options.desktop = ReadPath("--desktop", text); }},
      {"--caption", [&](Text text) { options.caption = text; }},
      {"--ini", [&](Text text) { options.ini = ReadPath("--ini", text); }},
      {"--drive", [&](Text text) { options.drive = ReadPath("--drive", text); }},
      {"--answer", [&](Text text) { options.answers.push_back(ReadAnswer(text)); }},
      {"--clipboard", [&](Text text) { options.clipboard = ReadPath("--clipboard", text); }},
      {"--resume", [&](Text text) { options.resumes = ReadNumber("--resume", text, 1'000'000); }},
      {"--now", [&](Text text) { options.now = ReadTime(text); }},
      {"--family", [&](Text text) { options.nt = ReadFamily(text); }},
      // Events of the simulated desktop lie at most 2^31 milliseconds ahead.
      {"--time-limit", [&](Text text) { options.timeLimit = ReadNumber("--time-limit", text, 2'000'000); }},
      {"--line-limit",
       [&](Text text) {
         options.lineLimit = ReadNumber("--line-limit", text, std::numeric_limits<std::int64_t>::max());
       }},
  };

  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (const auto flag = flags.find(argument); flag != flags.end()) {
      flag->second();
    } else if (const auto setting = settings.find(argument); setting != settings.end()) {
      if (++i == arguments.size()) throw UsageError{argument + " wants a value"};
      setting->second(arguments[i]);
    } else if (argument.starts_with("--")) {
      throw UsageError{"there is no option " + argument};
    } else if (!options.macro.empty()) {
      throw UsageError{"one macro at a time: \"" + options.macro + "\" or \"" + argument + "\""};
    } else {
      options.macro = argument;
    }
  }
  if (options.macro.empty() && !options.help) throw UsageError{"no macro is named"};
  return options;
}

}  // namespace makrun
