// Feeds the checker macros that have been spoilt at random, some of them in an editor's small changes. Built with the
// sanitizers it shows what reads beyond its memory; besides, every place that is told must lie in the file, and no macro
// may take longer than a moment.
//
//   checker_fuzz SECONDS [SEED] FOLDER...    FOLDER: where macros to begin with lie
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "checker.h"
#include "engine/built_in_variables.h"
#include "engine/verbs.h"
#include "lsp/document.h"

namespace {

constexpr unsigned kLongestMoment = 20;  // seconds, under sanitizers and load
constexpr std::size_t kLongestMacro = 20'000;

std::string current;  // the macro at work, for the report of a crash

[[noreturn]] void Report(const char* why) {
  std::FILE* file = std::fopen("checker_fuzz.mak", "wb");
  if (file != nullptr) {
    std::fwrite(current.data(), 1, current.size(), file);
    std::fclose(file);
  }
  std::fprintf(stderr, "checker_fuzz: %s; the macro is in checker_fuzz.mak\n", why);
  std::_Exit(1);
}

class Spoiler {
 public:
  Spoiler(std::uint32_t seed, std::vector<std::string> macros) : random_(seed), macros_(std::move(macros)) {
    for (const basMain::Verb& verb : basMain::Verbs()) words_.emplace_back(verb.word);
    for (const auto& variable : basMain::BuiltInVariables()) words_.emplace_back(variable.name);
    for (const char* word : {"=", ",", "'", "\"", "(", ")", "\t", " ", "\n", "\r", "\r\n", "DIM ", "REM ", "MARK=", "GOTO=",
                             "*.*", "C:\\", "32768", "2147483648", "-1", "1e99", "%MAINWINDOW%", "$", "%1", "\xEF\xBB\xBF",
                             "\xFF\xFE", "\xC3\xA4", "\x81", "DO\n", "ENDIF\n", "ELSE\n", "{", "}", ";"})
      words_.emplace_back(word);
    words_.emplace_back(1, '\0');
  }

  std::size_t Below(std::size_t count) { return count == 0 ? 0 : random_() % count; }

  // A short piece of any kind.
  std::string Piece() {
    switch (Below(4)) {
      case 0:
        return std::string(1, static_cast<char>(Below(256)));
      case 1: {
        const std::string& other = macros_[Below(macros_.size())];
        return other.substr(Below(other.size()), Below(80));
      }
      default:
        return words_[Below(words_.size())];
    }
  }

  std::string Macro() {
    std::string text = Below(10) == 0 ? "" : macros_[Below(macros_.size())];
    for (std::size_t changes = 1 + Below(20); changes > 0; --changes) {
      const std::size_t at = Below(text.size() + 1);
      text.replace(at, Below(3) == 0 ? Below(40) : 0, Piece());
    }
    if (Below(50) == 0) text += std::string(Below(2'000), Piece()[0]);
    return text.substr(0, kLongestMacro);
  }

 private:
  std::mt19937 random_;
  std::vector<std::string> macros_;
  std::vector<std::string> words_;
};

bool Lies(const makcheck::Macro& macro, std::size_t line, const makcheck::Span& span) {
  if (line >= macro.Lines().size()) return false;
  return span.start <= span.end && span.end <= macro.Lines()[line].raw.size();
}

void Judge(const makcheck::Macro& macro, const std::vector<makcheck::Finding>& findings) {
  for (const makcheck::Finding& finding : findings) {
    if (!Lies(macro, finding.line, finding.span)) Report("a finding lies outside the file");
    for (const makcheck::Fix& fix : finding.fixes)
      if (!Lies(macro, fix.line, fix.span)) Report("a fix lies outside the file");
    if (makcheck::MessageOf(finding).empty()) Report("a finding without a message");
  }
}

// Changes as an editor sends them; places beyond the text are clients' mistakes.
void Edit(Spoiler& spoiler) {
  makcheck::lsp::Document document(current);
  for (std::size_t changes = spoiler.Below(10); changes > 0; --changes) {
    makcheck::lsp::Range range{{spoiler.Below(40), spoiler.Below(60)}, {}};
    range.end = {range.start.line + spoiler.Below(3), spoiler.Below(60)};
    document.Change(range, makcheck::lsp::FromEditor(spoiler.Piece()));
    document.Check(nullptr);
    Judge(document.Macro(), document.Findings());
    document.At(range.start);
  }
}

std::vector<std::string> ReadMacros(const std::vector<std::string>& folders) {
  std::vector<std::string> macros;
  for (const std::string& folder : folders)
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
      if (!entry.is_regular_file() || entry.file_size() > kLongestMacro) continue;
      std::ifstream file(entry.path(), std::ios::binary);
      macros.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
  return macros;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> arguments(argv + 1, argv + argc);
  std::vector<long> numbers;
  while (numbers.size() < 2 && !arguments.empty() && arguments[0].find_first_not_of("0123456789") == std::string::npos) {
    numbers.push_back(std::atol(arguments[0].c_str()));
    arguments.erase(arguments.begin());
  }
  std::vector<std::string> macros = ReadMacros(arguments);
  if (numbers.empty() || macros.empty()) {
    std::fprintf(stderr, "usage: checker_fuzz SECONDS [SEED] FOLDER...\n");
    return 64;
  }
  signal(SIGALRM, [](int) { Report("a macro takes too long"); });
  Spoiler spoiler(static_cast<std::uint32_t>(numbers.size() > 1 ? numbers[1] : 1), std::move(macros));
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(numbers[0]);
  std::uint64_t count = 0;
  for (; count == 0 || std::chrono::steady_clock::now() < end; ++count) {
    current = spoiler.Macro();
    alarm(kLongestMoment);
    makcheck::CheckFile(current);
    const makcheck::Macro macro(current);
    Judge(macro, makcheck::CheckMacro(macro));
    if (spoiler.Below(10) == 0) Edit(spoiler);
  }
  std::printf("%llu macros, nothing wrong\n", static_cast<unsigned long long>(count));
  return 0;
}
