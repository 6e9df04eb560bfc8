#include "platform/desktop/keys/key_codes.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace platform::desktop {

namespace {

/// Keysyms in a row whose keys have codes in a row.
struct Key_Row {
    std::uint32_t first;
    std::uint32_t last;
    int code;  ///< of the first
};

/// Keysyms from <X11/keysymdef.h> and, from 0x10000000 on, <X11/XF86keysym.h>.
constexpr Key_Row named_keys[] = {
    {0x0020, 0x0020, 32},          // space
    {0x0030, 0x0039, 48},          // 0 to 9
    {0x0041, 0x005a, 65},          // A to Z
    {0x0061, 0x007a, 65},          // a to z
    {0xfd06, 0xfd06, 249},         // 3270_EraseEOF
    {0xfd0a, 0xfd0a, 253},         // 3270_PA1
    {0xfd0e, 0xfd0e, 246},         // 3270_Attn
    {0xfd16, 0xfd16, 250},         // 3270_Play
    {0xfd1b, 0xfd1b, 248},         // 3270_ExSelect
    {0xfd1c, 0xfd1c, 247},         // 3270_CursorSelect
    {0xfd1d, 0xfd1d, 42},          // 3270_PrintScreen
    {0xfe03, 0xfe03, 165},         // ISO_Level3_Shift: the right Alt of many layouts
    {0xfe20, 0xfe20, 9},           // ISO_Left_Tab
    {0xff08, 0xff09, 8},           // BackSpace, Tab
    {0xff0b, 0xff0b, 12},          // Clear
    {0xff0d, 0xff0d, 13},          // Return
    {0xff13, 0xff13, 19},          // Pause
    {0xff14, 0xff14, 145},         // Scroll_Lock
    {0xff15, 0xff15, 44},          // Sys_Req
    {0xff1b, 0xff1b, 27},          // Escape
    {0xff50, 0xff54, 36},          // Home, Left, Up, Right, Down
    {0xff55, 0xff57, 33},          // Prior, Next, End
    {0xff60, 0xff60, 41},          // Select
    {0xff61, 0xff61, 44},          // Print: the key that takes a picture of the screen
    {0xff62, 0xff62, 43},          // Execute
    {0xff63, 0xff63, 45},          // Insert
    {0xff67, 0xff67, 93},          // Menu
    {0xff69, 0xff69, 3},           // Cancel
    {0xff6a, 0xff6a, 47},          // Help
    {0xff6b, 0xff6b, 3},           // Break
    {0xff7e, 0xff7e, 165},         // Mode_switch: the right Alt of older layouts
    {0xff7f, 0xff7f, 144},         // Num_Lock
    {0xff80, 0xff80, 32},          // KP_Space
    {0xff89, 0xff89, 9},           // KP_Tab
    {0xff8d, 0xff8d, 13},          // KP_Enter
    {0xff95, 0xff95, 103},         // KP_Home, on the key of the 7
    {0xff96, 0xff96, 100},         // KP_Left
    {0xff97, 0xff97, 104},         // KP_Up
    {0xff98, 0xff98, 102},         // KP_Right
    {0xff99, 0xff99, 98},          // KP_Down
    {0xff9a, 0xff9a, 105},         // KP_Prior
    {0xff9b, 0xff9b, 99},          // KP_Next
    {0xff9c, 0xff9c, 97},          // KP_End
    {0xff9d, 0xff9d, 101},         // KP_Begin
    {0xff9e, 0xff9e, 96},          // KP_Insert
    {0xff9f, 0xff9f, 110},         // KP_Delete
    {0xffaa, 0xffaf, 106},         // KP_Multiply, _Add, _Separator, _Subtract, _Decimal, _Divide
    {0xffb0, 0xffb9, 96},          // KP_0 to KP_9
    {0xffbe, 0xffd5, 112},         // F1 to F24
    {0xffe1, 0xffe4, 160},         // Shift_L, Shift_R, Control_L, Control_R
    {0xffe5, 0xffe5, 20},          // Caps_Lock
    {0xffe6, 0xffe6, 20},          // Shift_Lock
    {0xffe7, 0xffe8, 164},         // Meta_L, Meta_R
    {0xffe9, 0xffea, 164},         // Alt_L, Alt_R
    {0xffeb, 0xffec, 91},          // Super_L, Super_R
    {0xffff, 0xffff, 46},          // Delete
    {0x1008ff55, 0x1008ff55, 254}  // XF86Clear
};

constexpr Key_Row punctuation[] = {
    {0x0027, 0x0027, 222},  // apostrophe
    {0x002b, 0x002b, 187},  // plus
    {0x002c, 0x002f, 188},  // comma, minus, period, slash
    {0x003b, 0x003b, 186},  // semicolon
    {0x003c, 0x003c, 226},  // less: a key of its own beside the left Shift
    {0x003d, 0x003d, 187},  // equal
    {0x005b, 0x005d, 219},  // bracketleft, backslash, bracketright
    {0x0060, 0x0060, 192},  // grave
};

/// Keycodes of the rows of an American keyboard: its digits and letters, and its punctuation.
constexpr std::pair<std::uint32_t, std::string_view> rows_of_places[] = {
    {10, "1234567890"}, {24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM"}};
constexpr Key_Row places[] = {
    {20, 20, 189},  // minus
    {21, 21, 187},  // equal
    {34, 34, 219},  // bracketleft
    {35, 35, 221},  // bracketright
    {47, 47, 186},  // semicolon
    {48, 48, 222},  // apostrophe
    {49, 49, 192},  // grave
    {51, 51, 220},  // backslash
    {59, 59, 188},  // comma
    {60, 61, 190},  // period, slash
    {94, 94, 226},  // beside the left Shift
};

int Find_Code(std::span<const Key_Row> rows, std::span<const std::uint32_t> keysyms) {
    for (const std::uint32_t keysym : keysyms) {
        const auto row = std::find_if(rows.begin(), rows.end(), [=](const Key_Row& candidate) {
            return keysym >= candidate.first && keysym <= candidate.last;
        });
        if (row != rows.end()) return row->code + static_cast<int>(keysym - row->first);
    }
    return 0;
}

/// The pairs' codes stand from 160 on, left and right in turn, and the common ones from 16 on.
int Common_Code(int code) {
    return code >= 160 && code <= 165 ? 16 + (code - 160) / 2 : 0;
}

}  // namespace

Key_Codes Codes_Of(std::span<const std::uint32_t> keysyms) {
    int code = Find_Code(named_keys, keysyms);
    if (code == 0) code = Find_Code(punctuation, keysyms);
    return {code, Common_Code(code)};
}

Key_Codes Codes_Of_Place(std::uint32_t keycode) {
    for (const auto& [first, codes] : rows_of_places) {
        if (keycode >= first && keycode < first + codes.size()) return {codes[keycode - first]};
    }
    return {Find_Code(places, {&keycode, 1})};
}

}  // namespace platform::desktop
