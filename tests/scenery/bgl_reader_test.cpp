#include "scenery/bgl_reader.h"

#include <cmath>
#include <gtest/gtest.h>

#include "scenery/bgl_units.h"
#include "tests/scenery/bgl_builder.h"

namespace skerrand {
namespace {

TEST(Bgl_Reader, Single_Bits_Misread) {
    const struct {
        std::uint32_t bits;
        double value;
    } cases[] = {{0x00000000, 0.0},
                 {0x3F800000, 1.0},
                 {0xC2F6E979, -123.45600128173828},
                 {0x7F7FFFFF, 3.4028234663852886e38},
                 {0x80000000, -std::ldexp(1.0, -127)},
                 {0x00400000, std::ldexp(1.5, -127)},
                 {0x7F800000, 0.0},
                 {0xFFC00001, 0.0}};
    for (const auto& c : cases)
        EXPECT_EQ(Bits_To_Single(static_cast<std::int32_t>(c.bits)), c.value) << c.bits;
}

TEST(Bgl_Reader, Read_Leaves_The_Image) {
    bgl::Load({1, 2, 3});
    EXPECT_TRUE(In_Image(0, 4));  // with the spare byte
    EXPECT_EQ(Read_Long(0), 0x00030201);
    EXPECT_FALSE(In_Image(1, 4));
    EXPECT_FALSE(In_Image(-1, 1));
    EXPECT_FALSE(In_Image(0x7FFFFFFFFFFFFFFF, 4));
    EXPECT_TRUE(In_Image(99, 0));
}

TEST(Bgl_Reader, Zero_Byte_Ends_A_Text) {
    bgl::Load({'A', 0, 'B', 0xE9, 0});
    EXPECT_EQ(Read_Text(0, 5), "AB\xE9");
    EXPECT_EQ(Read_Text(0, -3), "");
}

TEST(Bgl_Units, Frequency_Not_In_Shortest_Form) {
    const struct {
        std::uint32_t code;
        const char* text;
    } cases[] = {{0x01213000, "121.3"},   {0x01180000, "118"},       {0x01213500, "121.35"},
                 {0x01200050, "120.005"}, {0x99999999, "9999.9999"}, {0, "0"},
                 {0x00005000, "0.5"},     {0x0121A000, ""},          {0xA0000000, ""}};
    for (const auto& c : cases)
        EXPECT_EQ(Frequency_Text(static_cast<std::int32_t>(c.code)), c.text) << c.code;
}

}  // namespace
}  // namespace skerrand
