#include "bench/summary.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <utility>

namespace bench {

namespace {

using Cells = std::vector<std::string>;

std::string Verdict(const Row& row) {
    if (row.target.empty()) return "";
    return row.met ? "met" : "MISSED";
}

/// Characters, not bytes, since the letter for millionths takes two.
std::size_t Width(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

/// The first line heads the others; columns 1 to 3 hold numbers.
void Print_Table(const std::vector<Cells>& lines) {
    std::vector<std::size_t> widths(lines.front().size());
    for (const Cells& cells : lines) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            widths[i] = std::max(widths[i], Width(cells[i]));
        }
    }
    std::cout << '\n';
    for (const Cells& cells : lines) {
        std::string line;
        for (std::size_t i = 0; i < cells.size(); ++i) {
            const std::string padding(widths[i] - Width(cells[i]), ' ');
            const bool is_number = i >= 1 && i <= 3;
            line += is_number ? padding + cells[i] + "  " : cells[i] + padding + "  ";
        }
        line.erase(line.find_last_not_of(' ') + 1);
        std::cout << line << '\n';
    }
    std::cout << std::flush;
}

double Middle(const std::vector<double>& sorted) {
    const std::size_t half = sorted.size() / 2;
    return sorted.size() % 2 != 0 ? sorted[half] : (sorted[half - 1] + sorted[half]) / 2;
}

}  // namespace

void Results::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.error_occurred) error_ = run.benchmark_name() + ": " + run.error_message;
        if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
        const benchmark::BenchmarkName& name = run.run_name;
        const std::string argument = name.args.empty() ? "" : "/" + name.args;
        std::vector<double>& times = seconds_[name.function_name + argument];
        const double time =
            run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
        times.insert(std::upper_bound(times.begin(), times.end(), time), time);
    }
}

double Results::Median(const std::string& name) const {
    const auto found = seconds_.find(name);
    return found == seconds_.end() ? 0 : Middle(found->second);
}

void Results::Print_All() const {
    std::vector<Cells> lines = {{"Benchmark", "fastest", "median", "slowest"}};
    for (const auto& [name, times] : seconds_) {
        lines.push_back(
            {name, Time_Text(times.front()), Time_Text(Middle(times)), Time_Text(times.back())});
    }
    Print_Table(lines);
}

Row Compared(const Results& results, std::string measure, const std::string& name,
             const std::string& yardstick, double most) {
    const double seconds = results.Median(name);
    const double standard = results.Median(yardstick);
    const double ratio = standard > 0 ? seconds / standard : 0;
    Row row{.measure = std::move(measure),
            .value = Time_Text(seconds),
            .yardstick = Time_Text(standard),
            .ratio = Number_Text(ratio, 2, "")};
    if (most > 0) {
        row.target = "at most " + Number_Text(most, most == std::floor(most) ? 0 : 1, " times");
        row.met = ratio > 0 && ratio <= most;
    }
    return row;
}

Row Limited(std::string measure, double seconds, double limit) {
    Row row{.measure = std::move(measure), .value = Time_Text(seconds)};
    if (limit > 0) {
        row.target = "at most " + Time_Text(limit);
        row.met = seconds > 0 && seconds <= limit;
    }
    return row;
}

std::string Number_Text(double number, int decimals, std::string_view unit) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(decimals) << number << unit;
    return text.str();
}

std::string Time_Text(double seconds) {
    constexpr std::array<std::pair<double, const char*>, 3> units = {
        {{1, " s"}, {1e3, " ms"}, {1e6, " µs"}}};
    for (const auto& [factor, unit] : units) {
        const double number = seconds * factor;
        if (number >= 1) return Number_Text(number, number < 10 ? 2 : number < 100 ? 1 : 0, unit);
    }
    return Number_Text(seconds * 1e9, 0, " ns");
}

void Print(const std::vector<Row>& rows) {
    std::vector<Cells> lines = {
        {"Measure (yardstick)", "median", "yardstick", "ratio", "target", ""}};
    for (const Row& row : rows) {
        lines.push_back(
            {row.measure, row.value, row.yardstick, row.ratio, row.target, Verdict(row)});
    }
    Print_Table(lines);
}

}  // namespace bench
