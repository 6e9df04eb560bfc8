#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace platform {

namespace {

/// The characters of the codes 128 to 159. All other codes are their own character.
constexpr std::array<std::uint16_t, 32> high_controls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::uint32_t No_Character = 0xFFFFFFFF;

void Append_Utf8(std::string& utf8, std::uint32_t character) {
    if (character >= 0x800) {
        utf8.push_back(static_cast<char>(0xE0 | (character >> 12)));
        utf8.push_back(static_cast<char>(0x80 | ((character >> 6) & 0x3F)));
    } else {
        utf8.push_back(static_cast<char>(0xC0 | (character >> 6)));
    }
    utf8.push_back(static_cast<char>(0x80 | (character & 0x3F)));
}

/// Length of the sequence that a first byte announces; 0 if it starts none.
constexpr std::size_t Sequence_Length(std::uint8_t first) {
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first <= 0xDF) return 2;
    if (first >= 0xE0 && first <= 0xEF) return 3;
    if (first >= 0xF0 && first <= 0xF4) return 4;
    return 0;
}

/// Takes one character off the front. A malformed sequence costs one byte and gives `No_Character`.
std::uint32_t Take_Character(std::string_view& utf8) {
    constexpr std::array<std::uint32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const auto first = static_cast<std::uint8_t>(utf8.front());
    const std::size_t length = Sequence_Length(first);
    if (length == 1) {
        utf8.remove_prefix(1);
        return first;
    }
    std::uint32_t character = length == 0 ? No_Character : first & (0x7FU >> length);
    for (std::size_t i = 1; i < length && character != No_Character; ++i) {
        const auto byte = i < utf8.size() ? static_cast<std::uint8_t>(utf8[i]) : std::uint8_t{0};
        character = (byte & 0xC0) == 0x80 ? (character << 6) | (byte & 0x3FU) : No_Character;
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character > 0x10FFFF || surrogate || character < smallest[length]) {
        utf8.remove_prefix(1);
        return No_Character;
    }
    utf8.remove_prefix(length);
    return character;
}

/// The code of a character, -1 if it has none.
int Code_Of(std::uint32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<int>(character);
    }
    const auto* found = std::find(high_controls.begin(), high_controls.end(), character);
    return found == high_controls.end() ? -1
                                        : static_cast<int>(found - high_controls.begin()) + 128;
}

/// Appends the text, "?" for what has no code; false if there was any such.
bool Convert(std::string_view utf8, std::string& text) {
    bool whole = true;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const int code = Code_Of(Take_Character(utf8));
        whole = whole && code >= 0;
        text.push_back(code < 0 ? '?' : static_cast<char>(code));
    }
    return whole;
}

}  // namespace

std::string To_Utf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (const char c : text) {
        const auto code = static_cast<std::uint8_t>(c);
        if (code < 0x80) {
            utf8.push_back(c);
        } else {
            Append_Utf8(utf8, code < 0xA0 ? high_controls[code - 0x80U] : code);
        }
    }
    return utf8;
}

std::optional<std::string> From_Utf8(std::string_view utf8) {
    std::string text;
    if (!Convert(utf8, text)) return std::nullopt;
    return text;
}

std::string From_Utf8_Lossy(std::string_view utf8) {
    std::string text;
    Convert(utf8, text);
    return text;
}

namespace {

using Codes = std::array<char, 256>;

/// Each code's other case where the code page has it. What is missing here (ß, ƒ, µ and the
/// ordinals) has its other case outside the code page, or none.
constexpr Codes Case_Table(bool lower) {
    Codes table{};
    for (std::size_t code = 0; code < table.size(); ++code)
        table[code] = static_cast<char>(code);
    const auto pair = [&table, lower](std::size_t capital, std::size_t small) {
        table[lower ? capital : small] = static_cast<char>(lower ? small : capital);
    };
    for (std::size_t capital = 'A'; capital <= 0xDE; ++capital) {
        const bool letter = capital <= 'Z' || (capital >= 0xC0 && capital != 0xD7);
        if (letter) pair(capital, capital + 32);
    }
    pair(0x8A, 0x9A);
    pair(0x8C, 0x9C);
    pair(0x8E, 0x9E);
    pair(0x9F, 0xFF);
    return table;
}

constexpr Codes lower_codes = Case_Table(true);
constexpr Codes upper_codes = Case_Table(false);

std::string Through(const Codes& table, std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [&table](char c) { return table[static_cast<std::uint8_t>(c)]; });
    return result;
}

}  // namespace

std::string Lower_Case(std::string_view text) {
    return Through(lower_codes, text);
}

std::string Upper_Case(std::string_view text) {
    return Through(upper_codes, text);
}

}  // namespace platform
