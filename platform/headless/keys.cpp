#include "platform/headless/keys.h"

#include <array>

#include "platform/headless/commands.h"
#include "platform/headless/targets.h"

namespace platform {

namespace {

/// By code, as `GetAsyncKeyState` tells it.
std::array<std::uint16_t, Last_Key_Code + 1> keys{};

}  // namespace

void headless::Reset_Keys() {
    keys.fill(0);
}

std::uint16_t GetAsyncKeyState(int code) {
    if (code < First_Key_Code || code > Last_Key_Code) return 0;
    std::uint16_t& key = keys[static_cast<std::size_t>(code)];
    const std::uint16_t state = key;
    key &= Key_Down;
    return state;
}

void headless::Key_Command(Arguments arguments, Reply& reply) {
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

}  // namespace platform
