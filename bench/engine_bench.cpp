// How long macros take, and whether the time grows with their size, or that of their data, and not faster.
#include <malloc.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "engine/macro_file.h"
#include "engine/reset.h"
#include "engine/run_loop.h"
#include "engine/state.h"
#include "environment/file_system.h"
#include "forms/simulated/user.h"
#include "frame/log.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "timing.h"

namespace {

namespace simulated = platform::simulated;

constexpr double kGrowth = 5.0;        // memory beyond the caches costs up to 3, a search through all lines 10
constexpr double kRunLimit = 1.0;      // seconds for 100,000 lines, log included, or 1,000 years
constexpr double kLoadLimit = 1.0;     // seconds for 1,000,000 lines
constexpr double kRecordsLimit = 5.0;  // seconds for 1,000,000 records

const std::string kMacro = "C:\\QUMA\\BENCH.MAK";

struct Macro {
  std::string text;
  int lines;                           // what the time is divided by: lines, or what else there is to do
  std::function<void()> desktop = {};  // adds what the macro works on
};

// A fresh system with an open log and the macro beside it.
void Prepare(const Macro& macro) {
  basMain::ResetProgram();
  forms::simulated::Reset();
  simulated::Reset();
  basMain::FileSystemState.emplace();
  basMain::OpenLog();
  simulated::PutFile(kMacro, macro.text);
  if (macro.desktop) macro.desktop();
}

// The time to load such macros, and the time to run them.
void Register(const std::string& kind, const std::vector<int>& sizes, Macro (*make)(int), bench::Limits load,
              bench::Limits run) {
  bench::Register(kind + "/load", sizes, load, [make](benchmark::State& state, int size) {
    const Macro macro = make(size);
    Prepare(macro);
    bench::Time(state, macro.lines, [] { basMain::LoadFile(kMacro); });
  });
  bench::Register(kind + "/run", sizes, run, [make](benchmark::State& state, int size) {
    const Macro macro = make(size);
    Prepare(macro);
    basMain::LoadFile(kMacro);
    bool completed = false;
    bench::Time(state, macro.lines, [&] { completed = basMain::ProcessMakro(0); });
    if (!completed) bench::Fail(state, "the macro did not complete: " + basMain::run.LastError);
  });
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

void RegisterAll() {
  const bench::Limits growth{.growth = kGrowth};
  Register("messages", {10'000, 100'000, 1'000'000}, Messages, {kGrowth, kLoadLimit, 1'000'000},
           {kGrowth, kRunLimit, 100'000});
  Register("variables", {2'000, 20'000, 200'000}, Variables, growth, growth);
  Register("jumps", {1'000, 10'000, 100'000}, Jumps, growth, growth);
  Register("records", {10'000, 100'000, 1'000'000}, Records, growth, {kGrowth, kRecordsLimit, 1'000'000});
  Register("years of a matrix", {100, 1'000}, Years, growth, {kGrowth, kRunLimit, 1'000});
}

}  // namespace

int main(int argc, char** argv) {
  // Memory is kept between the repetitions; else the large sizes would time the system that hands out fresh pages.
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, 1 << 30);
  const int status = bench::Main(argc, argv, RegisterAll);
  basMain::log = {};  // closes the log while there is a desktop
  return status;
}
