// Benchmarks with limits. Each runs at several sizes, a few times at each; the best time counts, so that a busy machine
// does not spoil it.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace bench {

// What a benchmark must not pass.
struct Limits {
  double growth = 0;      // of the time per line from one size to the next
  double seconds = 0;     // of the time at `size`; 0: none
  std::int64_t size = 0;  // lines
};

// One measurement at a size: prepares the work and takes its time with Time().
using Measurement = std::function<void(benchmark::State&, int size)>;

// Registers a benchmark with its sizes in ascending order.
void Register(const std::string& name, const std::vector<int>& sizes, Limits limits, Measurement measure);

// Times the work, which handles so many lines.
void Time(benchmark::State& state, std::int64_t lines, const std::function<void()>& work);

// The measurement is worth nothing, for this reason.
void Fail(benchmark::State& state, const std::string& reason);

// Runs what `registerAll` registers, or what the command line's filter takes of it, and prints the figures. With
// --small each runs once at its smallest size, to see that it works. Yields the exit status: 1 when a limit was passed
// or a measurement has failed, 64 for a wrong command line.
int Main(int argc, char** argv, void (*registerAll)());

}  // namespace bench
