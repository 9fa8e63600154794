#include "timing.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <string_view>

namespace bench {
namespace {

constexpr int kWrongUsage = 64;

bool small = false;
bool failed = false;
std::map<std::string, Limits> limitsOf;

void Complain(const std::string& what) {
  std::printf("FAILED: %s\n", what.c_str());
  failed = true;
}

// Shows the best of the repetitions alone and holds it against the limits.
class BestReporter : public benchmark::ConsoleReporter {
 public:
  BestReporter() : ConsoleReporter(OO_None) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    if (runs.empty() || runs.front().run_type == Run::RT_Aggregate) return;
    const Run best = *std::ranges::min_element(runs, {}, &Run::real_accumulated_time);
    ConsoleReporter::ReportRuns({best});
    if (best.complexity_n > 0) Check(best);  // else it failed
  }

 private:
  void Check(const Run& best) {
    const std::string& name = best.run_name.function_name;
    const Limits& limits = limitsOf[name];
    const double seconds = best.real_accumulated_time;
    if (best.complexity_n == limits.size && seconds > limits.seconds) Complain(name + " is too slow");
    const double perLine = seconds / static_cast<double>(best.complexity_n);
    double& before = perLineBefore_[name];
    if (before > 0 && perLine > limits.growth * before) Complain(name + " grows faster than its lines");
    before = perLine;
  }

  std::map<std::string, double> perLineBefore_;
};

}  // namespace

void Register(const std::string& name, const std::vector<int>& sizes, Limits limits, Measurement measure) {
  limitsOf[name] = limits;
  auto* registered = benchmark::RegisterBenchmark(name.c_str(), [measure](benchmark::State& state) {
    for ([[maybe_unused]] auto once : state) measure(state, static_cast<int>(state.range(0)));
  });
  for (const int size : sizes) {
    registered->Arg(size);
    if (small) break;
  }
  registered->Iterations(1)->Repetitions(small ? 1 : 5)->UseManualTime()->Unit(benchmark::kMillisecond);
}

void Time(benchmark::State& state, std::int64_t lines, const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  state.SetItemsProcessed(lines);
  state.SetComplexityN(lines);
}

void Fail(benchmark::State& state, const std::string& reason) {
  Complain(reason);
  state.SkipWithError(reason.c_str());
}

int Main(int argc, char** argv, void (*registerAll)()) {
  std::vector<char*> arguments(argv, argv + argc);
  small = std::erase_if(arguments, [](const char* text) { return std::string_view(text) == "--small"; }) > 0;
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return kWrongUsage;
  registerAll();
  BestReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
  return failed ? 1 : 0;
}

}  // namespace bench
