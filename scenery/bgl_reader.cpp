#include "scenery/bgl_reader.h"

#include <bit>
#include <iterator>
#include <limits>

namespace skerrand {

platform::Bytes bgl_bytes;
std::string current_file;

namespace {

/// Sound files stay below 9 times their size: that much comes together if tiny airports, whose
/// records in memory are larger than those in the file, are all listed twice.
constexpr std::int64_t Allowance_Factor = 16;
constexpr std::int64_t Allowance_Base = 1 << 20;
constexpr std::int64_t Unlimited = std::numeric_limits<std::int64_t>::max();

std::int64_t allowance = Unlimited;

}  // namespace

void Start_Allowance() {
    allowance = static_cast<std::int64_t>(bgl_bytes.size()) * Allowance_Factor + Allowance_Base;
}

void End_Allowance() {
    allowance = Unlimited;
}

bool Charge(std::int64_t bytes) {
    if (bytes <= 0 || allowance == Unlimited) return true;
    if (bytes > allowance) return false;
    allowance -= bytes;
    return true;
}

std::string Read_Text(std::int64_t pos, std::int64_t length) {
    if (length <= 0) return {};
    assert(In_Image(pos, length));
    const char* first = reinterpret_cast<const char*>(bgl_bytes.data()) + pos;
    std::string text(first, static_cast<std::size_t>(length));
    std::erase(text, '\0');
    return text;
}

std::string Read_Name(std::int64_t pos, std::int64_t length) {
    std::string text = Read_Text(pos, length);
    if (std::ssize(text) > Longest_Text) {
        text.resize(Longest_Text);
        text.shrink_to_fit();
    }
    return text;
}

double Bits_To_Single(std::int32_t bits) {
    const auto pattern = static_cast<std::uint32_t>(bits);
    const std::uint64_t sign = pattern >> 31;
    const std::uint64_t exponent = pattern >> 23 & 0xFF;
    const std::uint64_t mantissa = pattern & 0x7FFFFF;
    if (pattern == 0 || exponent == 255) return 0;
    // A double holds every such value; its exponent counts from -1023 instead of -127.
    return std::bit_cast<double>(sign << 63 | (exponent + 1023 - 127) << 52 | mantissa << 29);
}

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
