#include "keys/keys.h"

#include <algorithm>
#include <iterator>

#include "app/settings.h"
#include "chart/form4.h"
#include "platform/keys.h"
#include "simlink/live_poll.h"

namespace skerrand {

namespace {

struct Named_Key {
    std::int32_t code;
    const char* name;
};

/// The digits of the keypad and the function keys are named by number.
constexpr Named_Key named_keys[] = {
    {1, "[LBUTTON]"},       {2, "[RIGHT BUTTON]"},   {3, "[CANCEL]"},
    {4, "[MBUTTON]"},       {8, "[BACKSPACE]"},      {9, "[TAB]"},
    {12, "[CLEAR]"},        {13, "[RETURN]"},        {16, "[SHIFT]"},
    {17, "[CONTROL]"},      {18, "[ALT]"},           {19, "[PAUSE]"},
    {20, "[CAPS LOCK]"},    {27, "[ESCAPE]"},        {32, "[SPACE]"},
    {33, "[PG UP]"},        {34, "[PG DOWN]"},       {35, "[END]"},
    {36, "[HOME]"},         {37, "[LEFT]"},          {38, "[UP]"},
    {39, "[RIGHT]"},        {40, "[DOWN]"},          {41, "[SELECT]"},
    {42, "[PRINT]"},        {43, "[EXECUTE]"},       {44, "[PRINT SCREEN]"},
    {45, "[INSERT]"},       {46, "[DELETE]"},        {47, "[HELP]"},
    {106, "[MULTIPLY]"},    {107, "[PLUS]"},         {108, "[SEPARATOR]"},
    {109, "[SUBSTRACT]"},   {110, "[DECIMAL]"},      {111, "[DIVIDE]"},
    {144, "[VERR NUM]"},    {145, "[SCROLL LOCK]"},  {160, "[LEFT SHIFT]"},
    {161, "[RIGHT SHIFT]"}, {162, "[LEFT CONTROL]"}, {163, "[RIGHT CONTROL]"},
    {164, "[LEFT ALT]"},    {165, "[RIGHT ALT]"},    {229, "[PROCESS KEY]"},
    {246, "[ATTN]"},        {247, "[CRSEL]"},        {248, "[EXSEL]"},
    {249, "[EREOF]"},       {250, "[PLAY]"},         {251, "[ZOOM]"},
    {252, "[NONAME]"},      {253, "[PA1]"},          {254, "[OEM CLEAR]"},
};

constexpr std::int32_t Numpad_0 = 96;
constexpr std::int32_t Numpad_9 = 105;
constexpr std::int32_t F1 = 112;
constexpr std::int32_t F24 = 135;

std::string Bracketed(const char* name, std::int32_t number) {
    return "[" + std::string(name) + std::to_string(number) + "]";
}

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

std::string Key_Name(std::int32_t code) {
    if (code < platform::First_Key_Code || code > platform::Last_Key_Code)
        return Bracketed("", code);
    if (code >= Numpad_0 && code <= Numpad_9) return Bracketed("NUMPAD ", code - Numpad_0);
    if (code >= F1 && code <= F24) return Bracketed("F", code - F1 + 1);
    for (const Named_Key& key : named_keys) {
        if (key.code == code) return key.name;
    }
    return std::string(1, static_cast<char>(code));
}

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
