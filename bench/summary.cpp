#include "bench/summary.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <utility>

namespace bench {

namespace {

using Cells = std::array<std::string, 6>;

std::string Verdict(const Row& row) {
    if (row.target.empty()) return "";
    return row.met ? "met" : "MISSED";
}

std::string At_Most(const std::string& text) { return "at most " + text; }

/// Characters, not bytes, since the letter for millionths takes two.
std::size_t Width(std::string_view utf8) {
    return static_cast<std::size_t>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

bool Results::ReportContext(const Context& context) {
    if (std::exchange(context_told_, true)) return true;
    return ConsoleReporter::ReportContext(context);
}

void Results::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        failed_ = failed_ || run.error_occurred;
        if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
        const double seconds =
            run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
        const benchmark::BenchmarkName& name = run.run_name;
        const std::string argument = name.args.empty() ? "" : "/" + name.args;
        seconds_[name.function_name + argument].push_back(seconds);
    }
    ConsoleReporter::ReportRuns(runs);
}

double Results::Median(const std::string& name) const {
    const auto found = seconds_.find(name);
    if (found == seconds_.end()) return 0;
    std::vector<double> sorted = found->second;
    std::sort(sorted.begin(), sorted.end());
    const std::size_t half = sorted.size() / 2;
    return sorted.size() % 2 != 0 ? sorted[half] : (sorted[half - 1] + sorted[half]) / 2;
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
        row.target = At_Most(Number_Text(most, 0, " times"));
        row.met = ratio > 0 && ratio <= most;
    }
    return row;
}

Row Limited(std::string measure, double seconds, double limit) {
    Row row{.measure = std::move(measure), .value = Time_Text(seconds)};
    if (limit > 0) {
        row.target = At_Most(Time_Text(limit));
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
    return Number_Text(seconds * 1e9, 1, " ns");
}

void Print(const std::vector<Row>& rows) {
    std::vector<Cells> lines = {{"Measure", "median", "yardstick", "ratio", "target", ""}};
    for (const Row& row : rows) {
        lines.push_back(
            {row.measure, row.value, row.yardstick, row.ratio, row.target, Verdict(row)});
    }
    std::array<std::size_t, std::tuple_size_v<Cells>> widths{};
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
            const bool number = i >= 1 && i <= 3;
            line += number ? padding + cells[i] + "  " : cells[i] + padding + "  ";
        }
        line.erase(line.find_last_not_of(' ') + 1);
        std::cout << line << '\n';
    }
    std::cout << std::flush;
}

}  // namespace bench
