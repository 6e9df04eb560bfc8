#include "scenery/bgl_units.h"

namespace skerrand {

std::string Frequency_Text(std::int32_t code) {
    std::uint32_t units = 0;
    for (int shift = 28; shift >= 0; shift -= 4) {
        const std::uint32_t digit = static_cast<std::uint32_t>(code) >> shift & 0xF;
        if (digit > 9) return {};
        units = units * 10 + digit;
    }
    std::string text = std::to_string(units / 10000);
    if (units % 10000 != 0) {
        // The 1 ahead keeps the leading zeros of the decimals.
        const std::string decimals = std::to_string(10000 + units % 10000);
        text += '.' + decimals.substr(1, decimals.find_last_not_of('0'));
    }
    return text;
}

}  // namespace skerrand
