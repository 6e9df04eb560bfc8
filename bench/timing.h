#pragma once

#include <benchmark/benchmark.h>
#include <chrono>

namespace bench {

/// Counts only the work itself as the time of an iteration, not what stands round it in the loop.
template <typename Work>
void Time(benchmark::State& state, Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    state.SetIterationTime(passed.count());
}

/// Registers a benchmark that takes its own time. Its repetitions and those of its yardstick come
/// interleaved, so that a change of the machine's mood meets both.
inline benchmark::internal::Benchmark* Register(const char* name,
                                                void (*function)(benchmark::State&)) {
    return benchmark::RegisterBenchmark(name, function)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->MinTime(0.05)
        ->Repetitions(9)
        ->ReportAggregatesOnly();
}

}  // namespace bench
