#pragma once

#include <cstdint>
#include <cstdio>
#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// As much of the benchmark library as these benchmarks use, for Windows programs made where there
/// is no such library for them.
namespace benchmark {

enum TimeUnit : std::uint8_t { kMicrosecond, kMillisecond };

/// One benchmark with one set of arguments while it runs, and its report.
class State {
  public:
    State(int iterations, std::vector<std::int64_t> arguments)
        : left_(iterations), arguments_(std::move(arguments)) {}

    struct [[maybe_unused]] Iteration {};
    struct Iterator {
        State* state;
        bool operator!=(int) const { return state->left_ > 0; }
        void operator++() const { --state->left_; }
        Iteration operator*() const { return {}; }
    };
    Iterator begin() { return {this}; }
    static int end() { return 0; }

    std::int64_t range(std::size_t place) const { return arguments_[place]; }
    static void SetIterationTime(double) {}
    void SetLabel(const std::string& label) { label_ = label; }
    void SkipWithError(const char* fault) { label_ = std::string("ERROR ") + fault; }

    void Report(const std::string& name) const {
        std::string row = name;
        for (const std::int64_t argument : arguments_)
            row += "/" + std::to_string(argument);
        std::printf("%-32s", row.c_str());
        for (const auto& [counter, value] : counters)
            std::printf(" %s=%.5g", counter.c_str(), value);
        std::printf(" %s\n", label_.c_str());
        std::fflush(stdout);
    }

    std::map<std::string, double> counters;

  private:
    int left_;
    std::vector<std::int64_t> arguments_;
    std::string label_;
};

namespace internal {

struct Benchmark {
    std::string name;
    void (*function)(State&) = nullptr;
    int iterations = 0;
    std::vector<std::vector<std::int64_t>> runs{{}};  ///< arguments of each

    Benchmark* UseManualTime() { return this; }
    Benchmark* Unit(TimeUnit) { return this; }
    Benchmark* ArgNames(const std::vector<std::string>&) { return this; }
    Benchmark* Iterations(int count) {
        iterations = count;
        return this;
    }
    Benchmark* ArgsProduct(const std::vector<std::vector<std::int64_t>>& arguments) {
        for (const auto& values : arguments) {
            std::vector<std::vector<std::int64_t>> longer;
            for (const auto& run : runs) {
                for (const std::int64_t value : values) {
                    longer.push_back(run);
                    longer.back().push_back(value);
                }
            }
            runs = longer;
        }
        return this;
    }
};

inline std::deque<Benchmark> benchmarks;

}  // namespace internal

inline internal::Benchmark* RegisterBenchmark(const char* name, void (*function)(State&)) {
    return &internal::benchmarks.emplace_back(internal::Benchmark{name, function});
}

inline void RunSpecifiedBenchmarks() {
    for (const internal::Benchmark& benchmark : internal::benchmarks) {
        for (const auto& run : benchmark.runs) {
            State state(benchmark.iterations, run);
            benchmark.function(state);
            state.Report(benchmark.name);
        }
    }
}

template <typename Value>
void DoNotOptimize(const Value& value) {
    asm volatile("" : : "g"(&value) : "memory");
}

}  // namespace benchmark
