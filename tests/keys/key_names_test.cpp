#include "keys/key_names.h"

#include <gtest/gtest.h>
#include <utility>

namespace skerrand {
namespace {

TEST(Key_Names, ACodeHasTheNameOfItsNeighbour) {
    const std::pair<std::int32_t, std::string> names[] = {
        {0, std::string(1, '\0')},
        {1, "[LBUTTON]"},
        {5, "\5"},
        {12, "[CLEAR]"},
        {32, "[SPACE]"},
        {47, "[HELP]"},
        {48, "0"},
        {65, "A"},
        {95, "_"},
        {96, "[NUMPAD 0]"},
        {105, "[NUMPAD 9]"},
        {106, "[MULTIPLY]"},
        {109, "[SUBSTRACT]"},
        {111, "[DIVIDE]"},
        {112, "[F1]"},
        {135, "[F24]"},
        {136, "\x88"},
        {144, "[VERR NUM]"},
        {160, "[LEFT SHIFT]"},
        {165, "[RIGHT ALT]"},
        {228, "\xE4"},
        {229, "[PROCESS KEY]"},
        {254, "[OEM CLEAR]"},
        {255, "\xFF"},
        {256, "[256]"},
        {-1, "[-1]"},
    };
    for (const auto& [code, name] : names)
        EXPECT_EQ(Key_Name(code), name) << code;

    int named = 0;
    for (std::int32_t code = 0; code < 256; ++code)
        named += Key_Name(code).size() > 1 ? 1 : 0;
    EXPECT_EQ(named, 88);
}

}  // namespace
}  // namespace skerrand
