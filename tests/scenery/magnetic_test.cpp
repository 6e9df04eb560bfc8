#include "scenery/magnetic.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "tests/scenery/bgl_builder.h"

namespace skerrand {
namespace {

/// A file of that length with its grid's offset at 110 and the numbers 0, 3, 6 and so on, cut to 16
/// bits, from `section` + 8 on.
bgl::Bytes Magdec_File(std::size_t length, std::int32_t section) {
    bgl::Bytes file, grid;
    for (std::size_t i = 0; i < 3 * Grid_Values; i += 3)
        grid.insert(grid.end(), {static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(i >> 8)});
    bgl::Put(file, 110, bgl::Longs({section}));
    if (section > 0 && section < 1000) bgl::Put(file, static_cast<std::size_t>(section) + 8, grid);
    file.resize(length);
    return file;
}

constexpr std::size_t Whole = 114 + 8 + 130320;  ///< with the section right behind its field

TEST(Magnetic, BadGridSpoilsTheTableOrTheMemory) {
    using enum Magdec_Result;
    const std::tuple<std::size_t, std::int32_t, Magdec_Result> cases[] = {
        {0, 0, Damaged},
        {113, 0, Damaged},
        {114, 0, No_Grid},
        {Whole, -1, No_Grid},
        {Whole - 1, 114, Damaged},
        {Whole, 115, Damaged},
        {Whole, 0x7FFFFFFF, Damaged},
        {Whole, 114, Loaded},
        {Whole + 5, 119, Loaded}};
    for (const auto& [length, section, result] : cases) {
        SCOPED_TRACE(testing::Message() << length << " bytes, section " << section);
        bgl_bytes = Magdec_File(length, section);
        bgl_bytes.push_back(0);
        magnetic_table.fill(77);
        EXPECT_EQ(Take_Grid(), result);
        if (result != Loaded) {
            EXPECT_EQ(std::count(magnetic_table.begin(), magnetic_table.end(), 77), 65161);
            continue;
        }
        EXPECT_EQ(magnetic_table[0], 0);
        EXPECT_EQ(magnetic_table[(47 + 90) + 181 * 238], 3 * (137 + 181 * 238) - 2 * 65536);
        EXPECT_EQ(magnetic_table[65159], 3 * 65159 - 3 * 65536);
        EXPECT_EQ(magnetic_table[65160], 77);
    }
    magnetic_table.fill(0);  // as other tests find it
}

}  // namespace
}  // namespace skerrand
