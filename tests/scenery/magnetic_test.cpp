#include "scenery/magnetic.h"

#include <algorithm>
#include <climits>
#include <gtest/gtest.h>

#include "tests/scenery/bgl_builder.h"

namespace skerrand {
namespace {

TEST(Magnetic, BadGridSpoilsTheTableOrTheMemory) {
    using enum Magdec_Result;
    constexpr std::size_t whole = 114 + 8 + 130320;  // with the section right behind its field
    const std::tuple<std::size_t, std::int32_t, Magdec_Result> cases[] = {
        {0, 0, Damaged},           {113, 0, Damaged},     {114, 0, No_Grid},
        {whole, -1, No_Grid},      {whole, 115, Damaged}, {whole - 1, 114, Damaged},
        {whole, INT_MAX, Damaged}, {whole, 114, Loaded},  {whole + 5, 119, Loaded}};
    for (const auto& [length, section, result] : cases) {
        SCOPED_TRACE(testing::Message() << length << " bytes, section " << section);
        // From the grid on, the numbers 0, 3, 6 and so on, cut to 16 bits.
        bgl_bytes.assign(length + 1, 0);
        const auto grid = static_cast<std::size_t>(section) + 8;
        for (std::size_t i = 0; result == Loaded && i < Grid_Values; ++i)
            bgl::Put(bgl_bytes, grid + 2 * i,
                     bgl::Prefix(bgl::Longs({static_cast<std::int64_t>(3 * i)}), 2));
        if (length > 113) bgl::Put(bgl_bytes, 110, bgl::Longs({section}));
        magnetic_table.fill(77);
        EXPECT_EQ(Take_Grid(), result);
        if (result != Loaded) {
            EXPECT_EQ(std::ranges::count(magnetic_table, 77), 65161);
            continue;
        }
        EXPECT_EQ(magnetic_table[(47 + 90) + 181 * 238], 3 * (137 + 181 * 238) - 2 * 65536);
        EXPECT_EQ(magnetic_table[65159], 3 * 65159 - 3 * 65536);
        EXPECT_EQ(magnetic_table[65160], 77);
    }
    magnetic_table.fill(0);  // as other tests find it
}

}  // namespace
}  // namespace skerrand
