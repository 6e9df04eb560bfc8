#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <limits>
#include <utility>

#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "platform/keys.h"
#include "platform/simulator/simulator.h"

// What stands around the program, as a script sets it and sees it: message boxes, the keyboard, the
// drives and the simulator.
namespace platform {

namespace {

std::vector<headless::Shown_Message> shown_messages;

/// By code, as `GetAsyncKeyState` tells it.
std::array<std::uint16_t, Last_Key_Code + 1> keys{};

}  // namespace

// The user presses the button at once, so that no time passes and nothing can fall due.
void Message_Box(std::string_view text, Icon icon, std::string_view title) {
    shown_messages.push_back({icon, std::string(title), std::string(text)});
}

std::uint16_t GetAsyncKeyState(int code) {
    if (code < First_Key_Code || code > Last_Key_Code) return 0;
    std::uint16_t& key = keys[static_cast<std::size_t>(code)];
    return std::exchange(key, key & Key_Down);
}

namespace headless {

std::vector<std::string> drive_entries;

void Reset_Surroundings() {
    shown_messages.clear();
    keys.fill(0);
    drive_entries.clear();
}

std::vector<Shown_Message> Take_Messages() {
    return std::exchange(shown_messages, {});
}

namespace {

using simulator::stand_in;
using simulator::State_Area_Size;
using Words = std::vector<std::string_view>;

void Tell_Messages(Arguments, Reply& reply) {
    constexpr std::array<std::string_view, 3> icons = {"information", "exclamation", "critical"};
    for (const Shown_Message& message : Take_Messages()) {
        const std::string_view icon = icons[static_cast<std::size_t>(message.icon)];
        Add_Fields(reply, {icon, message.title, message.text});
    }
}

void Move_Key(Arguments arguments, Reply& reply) {
    const auto code = Whole_Number(arguments[0], First_Key_Code, Last_Key_Code, reply);
    if (!code) return;
    std::uint16_t& key = keys[static_cast<std::size_t>(*code)];
    if (arguments[1] == "down") {
        if (key < Key_Down) key = Key_Down | Key_Was_Pressed;  // a key that is held repeats nothing
    } else if (arguments[1] == "up") {
        key &= Key_Was_Pressed;
    } else {
        Fail(reply, "a key goes down or up");
    }
}

void Set_Drives(Arguments arguments, Reply& reply) {
    const auto text = Program_Text(arguments[0], reply);
    if (!text) return;
    drive_entries.clear();
    std::string_view rest = *text;
    while (!rest.empty()) {
        const std::string_view entry = rest.substr(0, rest.find('|'));
        drive_entries.emplace_back(entry);
        rest.remove_prefix(std::min(entry.size() + 1, rest.size()));
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
    std::size_t offset = 0;
    if (!text.starts_with("0x")) {
        const auto number = Whole_Number(text, 0, State_Area_Size - 1, reply);
        if (number) return static_cast<std::size_t>(*number);
    } else if (Is_Hexadecimal(text.substr(2), offset) && offset < State_Area_Size) {
        return offset;
    } else {
        Fail(reply, "no such offset");
    }
    return std::nullopt;
}

void Set_Bytes(const Words& words, Reply& reply) {
    const auto offset = Offset(words[1], reply);
    if (!offset) return;
    const std::string_view digits = words[2];
    std::vector<std::uint8_t> bytes(digits.size() / 2);
    bool are_bytes = !digits.empty() && digits.size() % 2 == 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        are_bytes = are_bytes && Is_Hexadecimal(digits.substr(2 * i, 2), bytes[i]);
    if (!are_bytes) return Fail(reply, "not bytes in hexadecimal");
    if (bytes.size() > State_Area_Size - *offset) {
        return Fail(reply, "the bytes leave the state area");
    }
    std::copy(bytes.begin(), bytes.end(), stand_in.state_area.data() + *offset);
}

void Get_Bytes(const Words& words, Reply& reply) {
    const auto offset = Offset(words[1], reply);
    if (!offset) return;
    const auto most = static_cast<long long>(State_Area_Size - *offset);
    const auto count = Whole_Number(words[2], 0, most, reply);
    if (!count) return;
    std::string digits;
    for (std::size_t i = 0; i < static_cast<std::size_t>(*count); ++i) {
        const std::uint8_t byte = stand_in.state_area[*offset + i];
        digits += "0123456789abcdef"[byte >> 4];
        digits += "0123456789abcdef"[byte & 15];
    }
    Add_Line(reply, digits);
}

/// A reply is 32 bits, with or without a sign.
void Set_Reply(std::string_view number, std::string_view batches, Reply& reply) {
    const auto value = Whole_Number(number, std::numeric_limits<std::int32_t>::min(),
                                    std::numeric_limits<std::uint32_t>::max(), reply);
    if (!value) return;
    const auto before = Whole_Number(batches, 0, std::numeric_limits<std::int32_t>::max(), reply);
    if (!before) return;
    stand_in.reply = static_cast<std::uint32_t>(*value);
    stand_in.ones_first = *before;
}

void Set_Simulator(Arguments arguments, Reply& reply) {
    const Words words = Words_Of(arguments[0]);
    const std::string_view verb = words[0];
    const std::size_t count = words.size();
    if (verb == "on" && count == 1) return simulator::Start("UIPCMAIN");
    if (verb == "on" && count == 2 && words[1] == "fallback") return simulator::Start("FS98MAIN");
    if (verb == "off" && count == 1) return stand_in.window_class.clear();
    if (verb == "set" && count == 3) return Set_Bytes(words, reply);
    if (verb == "get" && count == 3) return Get_Bytes(words, reply);
    if (verb == "reply" && count == 2) return Set_Reply(words[1], "0", reply);
    if (verb == "reply" && count == 4 && words[2] == "after") {
        return Set_Reply(words[1], words[3], reply);
    }
    if (verb == "exchanges" && count == 1) {
        return Add_Line(reply, std::to_string(stand_in.answered));
    }
    Fail(reply, "no such simulator command");
}

constexpr Command commands[] = {
    {"messages", 0, Tell_Messages, true},
    {"key", 2, Move_Key},
    {"drives", 1, Set_Drives},
    {"simulator", 1, Set_Simulator},
};

}  // namespace

std::span<const Command> Surroundings_Commands() {
    return commands;
}

}  // namespace headless

}  // namespace platform
