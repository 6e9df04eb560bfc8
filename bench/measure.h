#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>
#include <string>
#include <vector>

#ifndef _WIN32
#include <benchmark/benchmark.h>
#endif

/// What all benchmarks share: each is measured beside a yardstick in the same run.
namespace bench {

constexpr clockid_t Wall = CLOCK_MONOTONIC;
/// What other programs do at the same time must not count, so work that no disk and no other
/// process has a part in is measured by the processor's time. On Windows that comes in steps longer
/// than such work.
#ifdef _WIN32
constexpr clockid_t Processor = Wall;
#else
constexpr clockid_t Processor = CLOCK_PROCESS_CPUTIME_ID;
#endif

/// Seconds.
inline double Now(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

template <typename Work>
double Time_Of(clockid_t clock, Work work) {
    const double start = Now(clock);
    work();
    return Now(clock) - start;
}

#ifndef _WIN32
/// Tells of the machine once.
class Reporter final : public benchmark::ConsoleReporter {
  public:
    Reporter() : ConsoleReporter(OO_Tabular) {}

  private:
    bool ReportContext(const Context& context) override {
        static const bool told = ConsoleReporter::ReportContext(context);
        return told;
    }
};
#endif

/// Times `work` in each round, with `prepare` ahead of it and the yardstick behind it, so that a
/// change of the machine's mood meets both. Told are the medians of both in milliseconds and the
/// ratio between them, the least time, which other programs stretch the least, and how many per
/// cent of a limit in seconds the median takes.
template <typename Prepare, typename Work, typename Yardstick>
void Measure(const std::string& name, int rounds, clockid_t clock, double limit, Prepare prepare,
             Work work, Yardstick yardstick) {
    std::vector<double> times;
    std::vector<double> standards;
    const auto once = [&] {
        prepare();
        times.push_back(Time_Of(clock, work));
        standards.push_back(Time_Of(clock, yardstick));
    };
    const auto figures = [&] {
        std::ranges::sort(times);
        std::ranges::sort(standards);
        const double median = times[times.size() / 2];
        const double standard = standards[standards.size() / 2];
        return std::map<std::string, double>{{"least", times[0] * 1e3},
                                             {"median", median * 1e3},
                                             {"ratio", median / standard},
                                             {"used", median / limit * 100},
                                             {"yardstick", standard * 1e3}};
    };
#ifdef _WIN32  // where Debian has no benchmark library for
    for (int i = 0; i < rounds; ++i)
        once();
    std::printf("%-24s", name.c_str());
    for (const auto& [counter, value] : figures())
        std::printf(" %s=%.5g", counter.c_str(), value);
    std::puts("");
    std::fflush(stdout);
#else
    static Reporter reporter;
    benchmark::RegisterBenchmark(name.c_str(),
                                 [&](benchmark::State& state) {
                                     for (auto _ : state) {
                                         once();
                                         state.SetIterationTime(times.back());
                                     }
                                     for (const auto& [counter, value] : figures())
                                         state.counters[counter] = value;
                                 })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(rounds);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::ClearRegisteredBenchmarks();
#endif
}

/// Ends the process.
[[noreturn]] inline void Give_Up(const std::string& message) {
    std::fputs(("bench: " + message + "\n").c_str(), stderr);
    std::_Exit(1);
}

}  // namespace bench
