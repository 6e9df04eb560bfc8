#include "tests/scenarios/answers.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace {

using Lines = std::vector<std::string>;

bool Line_Matches(const std::string& expected, const std::string& line) {
    if (expected == line || (expected == "\"\"" && line.empty())) return true;
    const std::string_view start = expected;
    return start.ends_with("...") && line.starts_with(start.substr(0, start.size() - 3));
}

bool All_Match(std::span<const std::string> expected, std::span<const std::string> answer) {
    while (!expected.empty()) {
        const auto others = expected.subspan(1);
        const bool any_lines = expected.front() == "...";
        if ((any_lines || expected.front().empty()) && All_Match(others, answer)) return true;
        if (answer.empty() || (!any_lines && !Line_Matches(expected.front(), answer.front()))) {
            return false;
        }
        if (!any_lines) expected = others;
        answer = answer.subspan(1);
    }
    return answer.empty();
}

std::string Marked(const char* mark, std::span<const std::string> lines) {
    constexpr std::size_t most = 12;
    std::string text;
    for (const std::string& line : lines.first(std::min(lines.size(), most))) {
        text += mark + line + "\n";
    }
    if (lines.size() <= most) return text;
    return text + mark + "(and " + std::to_string(lines.size() - most) + " more)\n";
}

}  // namespace

bool Matches(const Lines& expected, const Lines& answer) {
    return All_Match(expected, answer);
}

std::string Difference(const Lines& expected, const Lines& answer) {
    std::span<const std::string> wanted = expected;
    std::span<const std::string> got = answer;
    while (!wanted.empty() && !got.empty() && Line_Matches(wanted.front(), got.front())) {
        wanted = wanted.subspan(1);
        got = got.subspan(1);
    }
    while (!wanted.empty() && !got.empty() && Line_Matches(wanted.back(), got.back())) {
        wanted = wanted.first(wanted.size() - 1);
        got = got.first(got.size() - 1);
    }
    return Marked("  - ", wanted) + Marked("  + ", got);
}
