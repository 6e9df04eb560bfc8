#include "scenery/magnetic.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "scenery/bgl_reader.h"

namespace skerrand {
namespace {

/// A file of that length with its grid's offset at 110 and the numbers 0, 3, 6 and so on, cut to 16
/// bits, from `section` + 8 on.
platform::Bytes Magdec_File(std::size_t length, std::int32_t section) {
    platform::Bytes file(length);
    for (std::size_t i = 0; i < 4 && 110 + i < length; ++i) {
        file[110 + i] = static_cast<std::uint8_t>(static_cast<std::uint32_t>(section) >> 8 * i);
    }
    if (section <= 0) return file;
    for (std::size_t i = 0; i < Grid_Values; ++i) {
        const std::size_t at = static_cast<std::size_t>(section) + 8 + 2 * i;
        if (at < length) file[at] = static_cast<std::uint8_t>(3 * i);
        if (at + 1 < length) file[at + 1] = static_cast<std::uint8_t>(3 * i >> 8);
    }
    return file;
}

constexpr std::size_t Whole = 114 + 8 + 130320;  ///< with the section right behind its field

TEST(Magnetic, BadGridSpoilsTheTableOrTheMemory) {
    struct {
        std::size_t length;
        std::int32_t section;
        Magdec_Result result;
    } const cases[] = {
        {0, 0, Magdec_Result::Damaged},
        {113, 0, Magdec_Result::Damaged},
        {114, 0, Magdec_Result::No_Grid},
        {Whole, -1, Magdec_Result::No_Grid},
        {Whole - 1, 114, Magdec_Result::Damaged},
        {Whole, 115, Magdec_Result::Damaged},
        {Whole, 0x7FFFFFFF, Magdec_Result::Damaged},
        {Whole, 114, Magdec_Result::Loaded},
        {Whole + 5, 119, Magdec_Result::Loaded},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.length << " bytes, section " << c.section);
        bgl_bytes = Magdec_File(c.length, c.section);
        bgl_bytes.push_back(0);
        magnetic_table.fill(77);
        EXPECT_EQ(Take_Grid(), c.result);
        if (c.result != Magdec_Result::Loaded) {
            EXPECT_EQ(std::count(magnetic_table.begin(), magnetic_table.end(), 77), 65161);
            continue;
        }
        EXPECT_EQ(magnetic_table[0], 0);
        EXPECT_EQ(magnetic_table[(47 + 90) + 181 * 238], 3 * (137 + 181 * 238) - 2 * 65536);
        EXPECT_EQ(magnetic_table[12000], 36000 - 65536);
        EXPECT_EQ(magnetic_table[65159], 3 * 65159 - 3 * 65536);
        EXPECT_EQ(magnetic_table[65160], 77);
    }
}

TEST(Magnetic, FileNotKeptOrMissingOneTakenForAnEmptyGrid) {
    const std::string path = testing::TempDir() + "skerrand_magdec.bgl";
    EXPECT_EQ(Load_Magdec(path), Magdec_Result::Missing);
    EXPECT_FALSE(platform::File_Exists(path));
    platform::Bytes file = Magdec_File(Whole, 114);
    ASSERT_EQ(platform::Write_File(path, file), "");
    EXPECT_EQ(Load_Magdec(path), Magdec_Result::Loaded);
    file.push_back(0);
    EXPECT_EQ(bgl_bytes, file);
    platform::Delete_File(path);
    magnetic_table.fill(0);  // as other tests find it
}

}  // namespace
}  // namespace skerrand
