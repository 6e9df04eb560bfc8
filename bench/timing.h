#pragma once

#include <benchmark/benchmark.h>
#include <ctime>

namespace bench {

/// What other programs do at the same time must not count, so work that the disk has no part in is
/// measured by the processor's time.
enum class Clock : clockid_t {
    Processor = CLOCK_PROCESS_CPUTIME_ID,
    Wall = CLOCK_MONOTONIC,
};

/// Seconds.
inline double Now(Clock clock) {
    timespec time{};
    clock_gettime(static_cast<clockid_t>(clock), &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Counts only the work itself as the time of an iteration, not what stands round it in the loop.
template <typename Work>
void Time(benchmark::State& state, Clock clock, Work work) {
    const double start = Now(clock);
    work();
    state.SetIterationTime(Now(clock) - start);
}

template <typename Work>
void Time(benchmark::State& state, Work work) {
    Time(state, Clock::Processor, work);
}

/// Registers a benchmark that takes its own time. Its repetitions and those of its yardstick come
/// interleaved, so that a change of the machine's mood meets both.
inline benchmark::internal::Benchmark* Register(const char* name,
                                                void (*function)(benchmark::State&)) {
    return benchmark::RegisterBenchmark(name, function)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Repetitions(9);
}

}  // namespace bench
