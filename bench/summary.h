#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// The closing tables of a run: the times of all benchmarks, and each measure beside its yardstick
/// and its target.
namespace bench {

/// Keeps the times of all repetitions by the names of the benchmarks.
class Results : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Median of the repetitions, in seconds; 0 for a benchmark that did not run.
    double Median(const std::string& name) const;

    /// Why a benchmark could not run; empty if all could.
    const std::string& Error() const { return error_; }

    /// Prints fastest, median and slowest repetition of each benchmark.
    void Print_All() const;

  private:
    std::map<std::string, std::vector<double>> seconds_;  ///< in rising order
    std::string error_;
};

/// A line of the second table.
struct Row {
    std::string measure;
    std::string value;
    std::string yardstick = {};
    std::string ratio = {};
    std::string target = {};  ///< empty: none
    bool met = true;
};

/// A benchmark against another one, which it may take `most` times as long as; 0: no target.
Row Compared(const Results& results, std::string measure, const std::string& name,
             const std::string& yardstick, double most);

/// A time in seconds against its limit; 0: no target.
Row Limited(std::string measure, double seconds, double limit);

/// A time with three digits and its unit.
std::string Time_Text(double seconds);

std::string Number_Text(double number, int decimals, std::string_view unit);

void Print(const std::vector<Row>& rows);

}  // namespace bench
