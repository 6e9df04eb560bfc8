#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <vector>

#include "platform/headless/commands.h"
#include "platform/headless/simulator.h"
#include "platform/headless/targets.h"

namespace platform::headless {

namespace {

constexpr const char* Usual_Class = "UIPCMAIN";
constexpr const char* Fallback_Class = "FS98MAIN";

using Words = std::vector<std::string_view>;

Words Split(std::string_view text) {
    Words words;
    for (;;) {
        const std::size_t blank = text.find(' ');
        words.push_back(text.substr(0, blank));
        if (blank == std::string_view::npos) return words;
        text.remove_prefix(blank + 1);
    }
}

template <typename Number>
bool Is_Hexadecimal(std::string_view digits, Number& number) {
    const char* const end = digits.data() + digits.size();
    const auto [stop, problem] = std::from_chars(digits.data(), end, number, 16);
    return problem == std::errc() && stop == end;
}

/// Decimal, or hexadecimal with 0x ahead of it.
std::optional<std::size_t> Offset(std::string_view text, Reply& reply) {
    if (text.starts_with("0x")) {
        std::size_t offset = 0;
        if (Is_Hexadecimal(text.substr(2), offset) && offset < State_Area_Size) return offset;
        Fail(reply, "no such offset");
        return std::nullopt;
    }
    const auto offset = Whole_Number(text, 0, State_Area_Size - 1, reply);
    if (!offset) return std::nullopt;
    return static_cast<std::size_t>(*offset);
}

std::optional<std::vector<std::uint8_t>> Bytes_From_Digits(std::string_view digits) {
    std::vector<std::uint8_t> bytes(digits.size() / 2);
    if (digits.empty() || digits.size() % 2 != 0) return std::nullopt;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (!Is_Hexadecimal(digits.substr(2 * i, 2), bytes[i])) return std::nullopt;
    }
    return bytes;
}

std::string Digits_Of(std::span<const std::uint8_t> bytes) {
    std::string digits;
    digits.reserve(2 * bytes.size());
    for (const std::uint8_t byte : bytes) {
        digits += "0123456789abcdef"[byte >> 4];
        digits += "0123456789abcdef"[byte & 15];
    }
    return digits;
}

void Set(const Words& words, Reply& reply) {
    const auto offset = Offset(words[1], reply);
    if (!offset) return;
    const auto bytes = Bytes_From_Digits(words[2]);
    if (!bytes) return Fail(reply, "not bytes in hexadecimal");
    if (bytes->size() > State_Area_Size - *offset) {
        return Fail(reply, "the bytes leave the state area");
    }
    std::copy(bytes->begin(), bytes->end(), State_Area().subspan(*offset).begin());
}

void Get(const Words& words, Reply& reply) {
    const auto offset = Offset(words[1], reply);
    if (!offset) return;
    const auto most = static_cast<long long>(State_Area_Size - *offset);
    const auto count = Whole_Number(words[2], 0, most, reply);
    if (!count) return;
    const auto bytes = State_Area().subspan(*offset, static_cast<std::size_t>(*count));
    Add_Line(reply, Digits_Of(bytes));
}

/// A reply is 32 bits, with or without a sign.
void Change_Reply(std::string_view number, std::string_view batches, Reply& reply) {
    const auto value = Whole_Number(number, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::uint32_t>::max(), reply);
    if (!value) return;
    const auto before = Whole_Number(batches, 0, std::numeric_limits<std::int32_t>::max(), reply);
    if (before) Set_Reply(static_cast<std::uint32_t>(*value), *before);
}

}  // namespace

void Simulator_Command(Arguments arguments, Reply& reply) {
    const Words words = Split(arguments[0]);
    const std::string_view verb = words[0];
    const std::size_t count = words.size();

    if (verb == "on" && count == 1) return Start_Simulator(Usual_Class);
    if (verb == "on" && count == 2 && words[1] == "fallback") {
        return Start_Simulator(Fallback_Class);
    }
    if (verb == "off" && count == 1) return Stop_Simulator();
    if (verb == "set" && count == 3) return Set(words, reply);
    if (verb == "get" && count == 3) return Get(words, reply);
    if (verb == "reply" && count == 2) return Change_Reply(words[1], "0", reply);
    if (verb == "reply" && count == 4 && words[2] == "after") {
        return Change_Reply(words[1], words[3], reply);
    }
    if (verb == "exchanges" && count == 1) {
        return Add_Line(reply, std::to_string(Answered_Batches()));
    }
    Fail(reply, "no such simulator command");
}

}  // namespace platform::headless
