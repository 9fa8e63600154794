// How long it takes to turn the clipboard into a file, whether the time grows with the table and not faster, and how
// much memory it takes meanwhile.
//
// The verbs run as in a macro, on real files. The program ends with 1 when a limit is passed: kLimit for 100,000 lines,
// a time per line that grows by more than kGrowth from one size to ten times that, and kMemory times the text.
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>

#include "engine/state.h"
#include "environment/file_system.h"
#include "forms/simulated/user.h"
#include "frame/state.h"
#include "input/clipboard_capture.h"
#include "platform/files.h"
#include "platform/simulated/desktop.h"

namespace {

std::size_t held = 0;
std::size_t most = 0;

}  // namespace

void* operator new(std::size_t size) {
  void* memory = std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  held += malloc_usable_size(memory);
  most = std::max(most, held);
  return memory;
}

void operator delete(void* memory) noexcept {
  if (memory != nullptr) held -= malloc_usable_size(memory);
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

namespace {

namespace simulated = platform::simulated;

constexpr double kLimit = 1.0;   // seconds for 100,000 lines
constexpr double kGrowth = 3.0;  // memory beyond the caches and the disk cost something
constexpr double kMemory = 5.0;  // of the text

const std::string kFile = "C:\\QUMA\\Tabelle.csv";

bool failed = false;

void Check(bool good, const char* what) {
  if (good) return;
  std::printf("FAILED: %s\n", what);
  failed = true;
}

std::string Table(int lines) {
  std::string text = "Datum\tText\tArt\tBetrag\tWährung\tValuta\tKonto\tBeleg\r\n";
  for (int i = 1; i < lines; ++i)
    text += "03.01.2005\tMiete Werkstatt Januar, Rechnung 2005-0007\tLastschrift\t-1.480,00\tEUR\t03.01.2005\t70000\t" +
            std::to_string(i) + "\r\n";
  return text;
}

struct Cost {
  double seconds;
  double memory;  // times the text
};

Cost Measure(const std::string& table, bool (*verb)()) {
  simulated::Clipboard() = table;
  if (platform::FileExists(kFile)) platform::DeleteFileW(kFile);
  const std::size_t before = held;
  most = held;
  const auto start = std::chrono::steady_clock::now();
  Check(verb(), "the verb failed");
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
  return {passed.count(), static_cast<double>(most - before) / static_cast<double>(table.size())};
}

void MeasureVerb(const char* name, bool (*verb)()) {
  double perLineBefore = 0;
  for (const int lines : {10'000, 100'000, 1'000'000}) {
    const std::string table = Table(lines);
    Cost best = Measure(table, verb);
    for (int i = 0; i < 2; ++i) best.seconds = std::min(best.seconds, Measure(table, verb).seconds);
    std::printf("%-18s %8d lines %6.1f MB  %8.4f s  %6.3f us per line  memory %4.2f times the text\n", name, lines,
                static_cast<double>(table.size()) / 1e6, best.seconds, best.seconds * 1e6 / lines, best.memory);
    Check(lines != 100'000 || best.seconds < kLimit, "too slow");
    Check(best.memory < kMemory, "too much memory");
    const double perLine = best.seconds / lines;
    Check(perLineBefore == 0 || perLine <= kGrowth * perLineBefore, "the time grows faster than the table");
    perLineBefore = perLine;
  }
}

}  // namespace

int main() {
  simulated::Reset();
  forms::simulated::Reset();
  basMain::FileSystemState.emplace();
  basMain::frame.MainWindow = simulated::AddWindow({.className = "ThunderRT6FormDC", .text = "[a 30060010 2005114]"});
  MeasureVerb("SAVECLIPBOARD", [] { return basMain::SaveClipboard(kFile); });
  MeasureVerb("SAVECLIPBOARDZVK", [] { return basMain::SaveClipboardZVK(kFile, "0"); });
  return failed ? 1 : 0;
}
