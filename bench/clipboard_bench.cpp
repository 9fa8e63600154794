// How long it takes to turn the clipboard into a file, whether the time grows with the table and not faster, and how
// much memory it takes meanwhile.
//
// The verbs run as in a macro, on real files.
#include <malloc.h>

#include <algorithm>
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
#include "timing.h"

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

std::string Table(int lines) {
  std::string text = "Datum\tText\tArt\tBetrag\tWährung\tValuta\tKonto\tBeleg\r\n";
  for (int i = 1; i < lines; ++i)
    text += "03.01.2005\tMiete Werkstatt Januar, Rechnung 2005-0007\tLastschrift\t-1.480,00\tEUR\t03.01.2005\t70000\t" +
            std::to_string(i) + "\r\n";
  return text;
}

void Register(const std::string& name, bool (*verb)()) {
  bench::Register(name, {10'000, 100'000, 1'000'000}, {kGrowth, kLimit, 100'000},
                  [verb](benchmark::State& state, int lines) {
                    const std::string table = Table(lines);
                    simulated::Clipboard() = table;
                    if (platform::FileExists(kFile)) platform::DeleteFileA(kFile);
                    const std::size_t before = held;
                    most = held;
                    bool done = false;
                    bench::Time(state, lines, [&] { done = verb(); });
                    const double memory = static_cast<double>(most - before) / static_cast<double>(table.size());
                    state.counters["memory/text"] = memory;
                    if (!done) bench::Fail(state, "the verb failed: " + basMain::run.LastError);
                    else if (memory > kMemory) bench::Fail(state, "too much memory");
                  });
}

void RegisterAll() {
  Register("SAVECLIPBOARD", [] { return basMain::SaveClipboard(kFile); });
  Register("SAVECLIPBOARDZVK", [] { return basMain::SaveClipboardZVK(kFile, "0"); });
}

}  // namespace

int main(int argc, char** argv) {
  simulated::Reset();
  forms::simulated::Reset();
  basMain::FileSystemState.emplace();
  basMain::frame.MainWindow = simulated::AddWindow({.className = "ThunderRT6FormDC", .text = "[a 30060010 2005114]"});
  return bench::Main(argc, argv, RegisterAll);
}
