// From the keys of a keyboard, as the X server tells of them, to virtual-key codes.

#include <gtest/gtest.h>
#include <vector>

#include "platform/desktop/keys/keys.h"
#include "platform/keys.h"

using namespace platform;
using namespace platform::desktop;

TEST(Key_Codes, No_Layout_Moves_A_Key_To_A_Wrong_Code) {
    const std::tuple<const char*, std::vector<std::uint32_t>, Key_Codes> rows[] = {
        {"letter", {'q', 'Q'}, {81}},
        {"French digit row", {'&', '1', 0xb9}, {49}},
        {"French digit row, a key that gives a minus", {'-', '6', '|'}, {54}},
        {"Cyrillic letter with Latin in the second group", {0x6c6, 0x6e6, 'a', 'A'}, {65}},
        {"German plus, with a tilde on its third level", {'+', '*', '~'}, {187}},
        {"less, beside the left Shift", {'<', '>', '|'}, {226}},
        {"keypad 7 without Num Lock first", {0xff95, 0xffb7}, {103}},
        {"keypad point of a German keyboard", {0xff9f, 0xffac}, {110}},
        {"F24", {0xffd5}, {135}},
        {"Pause, with Break on a level of it", {0xff13, 0xff6b}, {19}},
        {"Print, with Sys_Req on a level of it", {0xff61, 0xff15}, {44}},
        {"right Control", {0xffe4}, {163, 17}},
        {"Alt Gr", {0xfe03}, {165, 18}},
        {"a key without a code", {0, 0x1008ff11}, {}},
    };
    for (const auto& [key, keysyms, codes] : rows)
        EXPECT_EQ(Codes_Of(keysyms), codes) << key;
    EXPECT_EQ(Codes_Of_Place(47), Key_Codes{186}) << "German o with dots";
    EXPECT_EQ(Codes_Of_Place(61), Key_Codes{191}) << "Greek slash";
    EXPECT_EQ(Codes_Of_Place(200), Key_Codes{});
}

TEST(Keys, A_Key_That_Is_Held_From_The_Start_On_Is_No_Press) {
    Watch_Keys();
    Find_Key_Down(9, {27});
    Press_Key(9, {27});  // repeats itself
    EXPECT_EQ(GetAsyncKeyState(27), Key_Down);
}
