#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/code_page.h"

namespace platform {

namespace {

using Codes = std::array<char, 256>;

/// Capital letters with their small ones besides A to Z; the letters at 0xC0 to 0xDE have theirs
/// 32 codes on, but for the multiplication sign at 0xD7. What is missing here (ß, ƒ, µ and the
/// ordinals) has its other case outside the code page, or none.
constexpr std::uint8_t far_pairs[][2] = {{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}};

constexpr bool Has_Near_Pair(std::size_t code) {
    return (code >= 'A' && code <= 'Z') || (code >= 0xC0 && code <= 0xDE && code != 0xD7);
}

constexpr Codes Case_Table(bool lower) {
    Codes table{};
    for (std::size_t code = 0; code < table.size(); ++code)
        table[code] = static_cast<char>(code);
    for (std::size_t code = 0; code < table.size(); ++code) {
        if (!Has_Near_Pair(code)) continue;
        if (lower) {
            table[code] = static_cast<char>(code + 32);
        } else {
            table[code + 32] = static_cast<char>(code);
        }
    }
    for (const auto& pair : far_pairs) {
        table[pair[lower ? 0 : 1]] = static_cast<char>(pair[lower ? 1 : 0]);
    }
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
