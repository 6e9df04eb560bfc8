#include "keys/key_poll.h"

#include <algorithm>
#include <iterator>

#include "app/settings.h"
#include "chart/form4.h"
#include "platform/keys.h"
#include "simlink/live_poll.h"

namespace skerrand {

namespace {

struct Key_Command {
    std::int32_t Settings_Rec::*key;
    platform::Handler command;
};

/// The first row with a key takes it.
constexpr Key_Command commands[] = {
    {&Settings_Rec::key_departure, form4::dp_airpt_chrt_Click},
    {&Settings_Rec::key_destination, form4::dst_airpt_chrt_Click},
    {&Settings_Rec::key_zoom_in, form4::Command2_Click},
    {&Settings_Rec::key_zoom_out, form4::Command4_Click},
    {&Settings_Rec::key_pause, p_r_refresh_Click},
};

}  // namespace

bool Is_New_Press(std::int32_t code) {
    return platform::GetAsyncKeyState(code) == (platform::Key_Down | platform::Key_Was_Pressed);
}

void KeyPress_Checker_Timer() {
    for (std::int32_t code = platform::First_Key_Code; code <= platform::Last_Key_Code; ++code) {
        if (!Is_New_Press(code)) continue;
        const auto* found =
            std::find_if(std::begin(commands), std::end(commands),
                         [code](const Key_Command& row) { return settings.*row.key == code; });
        if (found != std::end(commands)) found->command();
    }
}

}  // namespace skerrand
