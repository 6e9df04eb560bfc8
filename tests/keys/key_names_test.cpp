#include <gtest/gtest.h>

#include "keys/keys.h"

using namespace skerrand;

TEST(Key_Names, ACodeHasTheNameOfItsNeighbour) {
    std::string names;
    for (const int code :
         {1,   5,   12,  32,  47,  48,  65,  95,  96,  105, 106, 109, 111, 112, 135, 136, 144,
          160, 165, 228, 229, 246, 247, 248, 249, 250, 251, 252, 253, 254, 255, 256, -1})
        names += Key_Name(code) + " ";
    EXPECT_EQ(names,
              "[LBUTTON] \5 [CLEAR] [SPACE] [HELP] 0 A _ [NUMPAD 0] [NUMPAD 9] [MULTIPLY] "
              "[SUBSTRACT] [DIVIDE] [F1] [F24] \x88 [VERR NUM] [LEFT SHIFT] [RIGHT ALT] \xE4 "
              "[PROCESS KEY] [ATTN] [CRSEL] [EXSEL] [EREOF] [PLAY] [ZOOM] [NONAME] [PA1] [OEM "
              "CLEAR] \xFF [256] [-1] ");
    EXPECT_EQ(Key_Name(0), std::string(1, '\0'));
}
