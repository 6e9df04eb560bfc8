#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

/// What all benchmarks share: each is measured beside a yardstick in the same run, and tells both
/// by counters.
namespace bench {

/// What other programs do at the same time must not count, so work that no disk and no other
/// process has a part in is measured by the processor's time. On Windows that comes in steps longer
/// than such work.
enum class Clock : clockid_t {
#ifdef _WIN32
    Processor = CLOCK_MONOTONIC,
#else
    Processor = CLOCK_PROCESS_CPUTIME_ID,
#endif
    Wall = CLOCK_MONOTONIC,
};

inline double Now(Clock clock) {
    timespec time{};
    clock_gettime(static_cast<clockid_t>(clock), &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Seconds.
template <typename Work>
double Time_Of(Clock clock, Work work) {
    const double start = Now(clock);
    work();
    return Now(clock) - start;
}

inline double Median(std::vector<double> values) {
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Times `work` in each iteration, with `prepare` ahead of it and the yardstick behind it, so that
/// a change of the machine's mood meets both. Counters, of medians: `median` and `yardstick` in
/// seconds, `ratio` between them, and of a limit in seconds (0: none) the part that was `used`;
/// besides them the `least` time, which other programs stretch the least.
template <typename Prepare, typename Work, typename Yardstick>
void Measure(benchmark::State& state, Clock clock, double limit, Prepare prepare, Work work,
             Yardstick yardstick) {
    std::vector<double> times;
    std::vector<double> standards;
    for (auto _ : state) {
        prepare();
        times.push_back(Time_Of(clock, work));
        state.SetIterationTime(times.back());
        standards.push_back(Time_Of(clock, yardstick));
    }
    state.counters["median"] = Median(times);
    state.counters["least"] = std::ranges::min(times);
    state.counters["yardstick"] = Median(standards);
    state.counters["ratio"] = Median(times) / Median(standards);
    if (limit > 0) state.counters["used"] = Median(times) / limit;
}

/// Registers a benchmark that calls `Measure`.
inline benchmark::internal::Benchmark* Add(const char* name, int iterations,
                                           void (*function)(benchmark::State&)) {
    return benchmark::RegisterBenchmark(name, function)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(iterations);
}

/// Ends the process.
[[noreturn]] inline void Give_Up(const std::string& message) {
    std::fputs(("bench: " + message + "\n").c_str(), stderr);
    std::_Exit(1);
}

}  // namespace bench
