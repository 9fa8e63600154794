// How long macros take, and whether the time grows with their size, or that of their data, and not faster.
//
// Each figure is the best of some runs, so that a busy machine does not spoil it. The program ends with 1 when a limit
// is passed: the time limits below, or a time per line that grows by more than kGrowth from one size to ten times that.
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "engine/macro_file.h"
#include "engine/run_loop.h"
#include "engine/state.h"
#include "environment/csv_reader.h"
#include "environment/file_system.h"
#include "forms/simulated/user.h"
#include "frame/log.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"

namespace {

namespace simulated = platform::simulated;

constexpr double kGrowth = 5.0;     // memory beyond the caches costs up to 3, a search through all lines 10
constexpr double kRunLimit = 1.0;   // seconds for 100,000 lines, log included
constexpr double kLoadLimit = 1.0;  // seconds for 1,000,000 lines

const std::string kMacro = "C:\\QUMA\\BENCH.MAK";

bool failed = false;

void Check(bool good, const std::string& what) {
  if (good) return;
  std::printf("FAILED: %s\n", what.c_str());
  failed = true;
}

// A fresh system with an open log and the macro beside it.
void Prepare(const std::string& macro) {
  basMain::log = {};
  basMain::FileSystemState.reset();
  basMain::run = {};
  basMain::csv = {};
  forms::simulated::Reset();
  simulated::Reset();
  basMain::FileSystemState.emplace();
  basMain::OpenLog();
  simulated::PutFile(kMacro, macro);
}

double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

struct Macro {
  std::string text;
  int lines;                           // what the time is divided by: lines, or what else there is to do
  std::function<void()> desktop = {};  // adds what the macro works on
};

struct Times {
  double load = 1e9;
  double run = 1e9;
};

Times BestTimes(const Macro& macro, int repetitions) {
  Times best;
  for (int i = 0; i < repetitions; ++i) {
    Prepare(macro.text);
    if (macro.desktop) macro.desktop();
    best.load = std::min(best.load, Seconds([] { basMain::LoadFile(kMacro); }));
    bool completed = false;
    best.run = std::min(best.run, Seconds([&] { completed = basMain::ProcessMakro(0); }));
    Check(completed, "the macro did not complete: " + basMain::run.LastError);
  }
  return best;
}

std::string Print(const char* what, int lines, double seconds) {
  char text[120];
  std::snprintf(text, sizeof text, "%-34s %9d lines  %8.4f s  %7.3f us per line", what, lines, seconds,
                seconds * 1e6 / lines);
  std::puts(text);
  return text;
}

// Sizes that a time limit is meant for; 0: none.
struct Limits {
  int runLines = 0;
  int loadLines = 0;
  double runSeconds = kRunLimit;
};

// Times one kind of macro at several sizes, each ten times the one before.
void Measure(const std::string& kind, const std::vector<int>& sizes, const std::function<Macro(int)>& make,
             Limits limits) {
  double loadBefore = 0;
  double runBefore = 0;
  for (const int size : sizes) {
    const Macro macro = make(size);
    const Times times = BestTimes(macro, size >= 1'000'000 ? 3 : 5);
    const std::string load = Print((kind + ", load").c_str(), macro.lines, times.load);
    const std::string run = Print((kind + ", run").c_str(), macro.lines, times.run);
    Check(size != limits.loadLines || times.load < kLoadLimit, load + ": too slow");
    Check(size != limits.runLines || times.run < limits.runSeconds, run + ": too slow");
    const double loadPerLine = times.load / macro.lines;
    const double runPerLine = times.run / macro.lines;
    if (runBefore > 0) {
      std::printf("%-34s time per line against the size before: load %.2f, run %.2f\n", kind.c_str(),
                  loadPerLine / loadBefore, runPerLine / runBefore);
      Check(loadPerLine <= kGrowth * loadBefore, load + ": grows faster than the macro");
      Check(runPerLine <= kGrowth * runBefore, run + ": grows faster than the macro");
    }
    loadBefore = loadPerLine;
    runBefore = runPerLine;
  }
}

Macro Messages(int lines) {
  Macro macro{"", lines};
  for (int i = 0; i < lines; ++i) macro.text += "MSG=x\r\n";
  return macro;
}

// Each variable is declared, given a value and used.
Macro Variables(int count) {
  Macro macro{"", 3 * count};
  const auto name = [](int i) { return "Variable" + std::to_string(i); };
  for (int i = 0; i < count; ++i) macro.text += "DIM " + name(i) + "\r\n";
  for (int i = 0; i < count; ++i) macro.text += name(i) + "=VALUE(" + std::to_string(i) + ")\r\n";
  for (int i = 0; i < count; ++i) macro.text += "MSG=" + name(i) + "\r\n";
  return macro;
}

// The run jumps to and fro between the two halves of the macro, so that every mark is far away.
Macro Jumps(int count) {
  Macro macro{"", 4 * count + 2};
  for (int i = 0; i < count; ++i)
    macro.text += "MARK=vorn" + std::to_string(i) + "\r\nGOTO=hinten" + std::to_string(i) + "\r\n";
  macro.text += "MARK=vorn" + std::to_string(count) + "\r\n";
  for (int i = 0; i < count; ++i)
    macro.text += "MARK=hinten" + std::to_string(i) + "\r\nGOTO=" + (i + 1 < count ? "vorn" : "ende") +
                  std::to_string(i + 1) + "\r\n";
  macro.text += "MARK=ende" + std::to_string(count) + "\r\n";
  return macro;
}

// A loop over the records of a file that reads one of their ten fields.
Macro Records(int count) {
  const auto desktop = [count] {
    std::string file = "Nummer;Name;Ort;Jahr;Von;Bis;Konto;Soll;Haben;Art;\r\n";
    for (int i = 0; i < count; ++i)
      file += std::to_string(i) + ";Müller GmbH;Nürnberg;2005;01.01.2005;31.12.2005;4400;1.234,56;0,00;S;\r\n";
    simulated::PutFile("C:\\Daten\\Liste.csv", file);
  };
  return {"OPENCSV=C:\\Daten\\Liste.csv,1,;\r\nDIM Konto\r\nDO\r\nKonto=CSVVALUE(6)\r\nLOOP UNTIL CSVFILE.EOF\r\n",
          count, desktop};
}

// The matrix of so many years, which a dialog offers in a hundred areas.
Macro Years(int count) {
  constexpr int kAreas = 100;
  const auto desktop = [count] {
    const std::int32_t dialog = simulated::AddWindow({.className = "ThunderRT6FormDC", .text = "Anlagen"});
    const std::int32_t areas = simulated::AddWindow({.className = "ComboBox", .parent = dialog, .id = 11});
    const std::int32_t years = simulated::AddWindow({.className = "ComboBox", .parent = dialog, .id = 12});
    for (int i = 0; i < kAreas; ++i) simulated::At(areas).entries.push_back("Inventar " + std::to_string(i));
    simulated::At(dialog).procedure = [=](const simulated::Message& message) -> std::optional<std::int32_t> {
      if (message.number != platform::WM_COMMAND) return std::nullopt;
      auto& entries = simulated::At(years).entries;
      entries.clear();
      for (int i = simulated::At(areas).selection; i < count; i += kAreas)
        entries.push_back("01.01." + std::to_string(2000 + count - 1 - i));
      return std::nullopt;
    };
  };
  return {"CREATEMATRIX=12,11,Anlagen,1\r\n", count, desktop};
}

}  // namespace

int main() {
  // Memory is kept between the repetitions; else the large sizes would time the system that hands out fresh pages.
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, 1 << 30);

  Measure("messages", {10'000, 100'000, 1'000'000}, Messages, {.runLines = 100'000, .loadLines = 1'000'000});
  Measure("variables", {2'000, 20'000, 200'000}, Variables, {});
  Measure("jumps", {1'000, 10'000, 100'000}, Jumps, {});
  Measure("records", {10'000, 100'000, 1'000'000}, Records, {.runLines = 1'000'000, .runSeconds = 5.0});
  Measure("years of a matrix", {100, 1'000}, Years, {.runLines = 1'000});
  basMain::log = {};  // closes the log while there is a desktop
  return failed ? 1 : 0;
}
