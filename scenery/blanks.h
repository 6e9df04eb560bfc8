#pragma once

#include <cstddef>
#include <string_view>

namespace skerrand {

/// The text without the blanks at its ends; tabs are no blanks.
inline std::string_view Trim_Blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace skerrand
