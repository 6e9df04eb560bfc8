#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// The closing table of a run: each measure beside its yardstick and its target.
namespace bench {

/// Shows the benchmarks as they run and keeps their times.
class Results : public benchmark::ConsoleReporter {
  public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    /// Median of the repetitions, in seconds; 0 for a benchmark that did not run.
    double Median(const std::string& name) const;

    /// Whether a benchmark has reported an error.
    bool Has_Failed() const { return failed_; }

  private:
    std::map<std::string, std::vector<double>> seconds_;
    bool context_told_ = false;
    bool failed_ = false;
};

struct Row {
    std::string measure;
    std::string value;
    std::string yardstick = {};
    std::string ratio = {};
    std::string target = {};
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

/// Prints the table to standard output.
void Print(const std::vector<Row>& rows);

}  // namespace bench
