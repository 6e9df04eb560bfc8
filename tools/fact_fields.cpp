#include "tools/fact_fields.h"

#include <charconv>
#include <cmath>

namespace world {

namespace {

constexpr std::string_view Letters = " LRCH";  // by `Runway_Letter`

template <typename Number>
std::optional<Number> To_Number(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end) return std::nullopt;
    return number;
}

}  // namespace

std::optional<std::string_view> Next_Word(Fact_Fields& fields) {
    const std::string_view word = fields.rest.substr(0, fields.rest.find(' '));
    fields.rest.remove_prefix(word.size());
    if (!fields.rest.empty()) fields.rest.remove_prefix(1);
    if (word.empty()) return std::nullopt;
    return word;
}

std::optional<double> Next_Number(Fact_Fields& fields, double lowest, double highest) {
    const auto word = Next_Word(fields);
    if (!word) return std::nullopt;
    const auto number = To_Number<double>(*word);
    return number && *number >= lowest && *number <= highest ? number : std::nullopt;
}

std::optional<int> Next_Count(Fact_Fields& fields, int highest) {
    const auto word = Next_Word(fields);
    if (!word) return std::nullopt;
    const auto count = To_Number<int>(*word);
    return count && *count >= 0 && *count <= highest ? count : std::nullopt;
}

std::optional<Position> Next_Position(Fact_Fields& fields) {
    const auto lat = Next_Number(fields, -90, 90);
    const auto lon = Next_Number(fields, -180, 180);
    if (!lat || !lon) return std::nullopt;
    return Position{*lat, *lon};
}

std::optional<Frequency> Next_Frequency(Fact_Fields& fields) {
    const auto megahertz = Next_Number(fields, 0, 9999.9999);
    if (!megahertz) return std::nullopt;
    return static_cast<Frequency>(std::lround(*megahertz * 10000));
}

std::optional<Designator> Next_Designator(Fact_Fields& fields) {
    auto word = Next_Word(fields);
    if (!word) return std::nullopt;
    Designator designator;
    const std::size_t letter = Letters.find(word->back());
    if (letter != std::string_view::npos) {
        designator.letter = static_cast<Runway_Letter>(letter);
        word->remove_suffix(1);
    }
    const auto number = To_Number<int>(*word);
    if (!number || *number < 1 || *number > 36) return std::nullopt;
    designator.number = *number;
    return designator;
}

Designator Opposite(Designator designator) {
    designator.number += designator.number > 18 ? -18 : 18;
    if (designator.letter == Runway_Letter::Left) {
        designator.letter = Runway_Letter::Right;
    } else if (designator.letter == Runway_Letter::Right) {
        designator.letter = Runway_Letter::Left;
    }
    return designator;
}

std::optional<int> Label_Code(std::string_view text) {
    // In the order of their codes, from 1 on.
    static constexpr std::string_view Labels[] = {
        "PARKING",    "N PARKING", "NE PARKING", "E PARKING", "SE PARKING", "S PARKING",
        "SW PARKING", "W PARKING", "NW PARKING", "GATE",      "DOCK",
    };
    int code = Label_Parking;
    for (const std::string_view label : Labels) {
        if (text == label) return code;
        ++code;
    }
    constexpr std::string_view Gate = "GATE ";
    if (text.size() != Gate.size() + 1 || text.substr(0, Gate.size()) != Gate) return std::nullopt;
    if (text.back() < 'A' || text.back() > 'Z') return std::nullopt;
    return Label_Gate_A + (text.back() - 'A');
}

}  // namespace world
