#include "app/settings.h"

#include <gtest/gtest.h>

namespace skerrand {
namespace {

Settings_Rec Sample() {
    return {.signature = "Skerrand v2.0",
            .format_mark = 1,
            .sim_version = 1,
            .fs_path = "/home/caf\xE9",
            .airport_count = 27000,
            .airspace_file_count = 0x01020304,
            .key_departure = 49,
            .key_destination = 50,
            .key_zoom_in = 107,
            .key_zoom_out = 109,
            .key_pause = -65};
}

TEST(Settings, FieldAtAnotherOffsetThanOldFilesHaveIt) {
    const platform::Bytes bytes = Settings_Bytes(Sample());
    constexpr std::size_t l1 = 13, l2 = 10;
    ASSERT_EQ(bytes.size(), 34 + l1 + l2);
    EXPECT_EQ(bytes[0], l1);
    EXPECT_EQ(bytes[2 + l1], 1);
    EXPECT_EQ(bytes[4 + l1], l2);
    EXPECT_EQ(bytes[6 + l1 + l2 - 1], 0xE9);
    EXPECT_EQ(bytes[10 + l1 + l2], 0x04);
    EXPECT_EQ(bytes[13 + l1 + l2], 0x01);
    EXPECT_EQ(bytes[14 + l1 + l2], 49);
    EXPECT_EQ(bytes[33 + l1 + l2], 0xFF);
}

TEST(Settings, CutFileTakenForWhole) {
    const platform::Bytes whole = Settings_Bytes(Sample());
    Settings_Rec record;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const platform::Bytes cut(whole.begin(),
                                  whole.begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_FALSE(Parse_Settings(cut, record)) << length;
        EXPECT_EQ(record, Settings_Rec{}) << length;
    }
    ASSERT_TRUE(Parse_Settings(whole, record));
    EXPECT_EQ(record, Sample());
}

TEST(Settings, NegativeCountWouldSizeATable) {
    Settings_Rec record = Sample();
    record.airspace_file_count = -1;
    EXPECT_FALSE(Parse_Settings(Settings_Bytes(record), record));
}

TEST(Settings, SavingCutsTheBytesBehindTheRecord) {
    app_path = testing::TempDir();
    app_path.pop_back();
    settings = Sample();
    platform::Bytes longer = Settings_Bytes(settings);
    longer.insert(longer.end(), {1, 2, 3});
    ASSERT_EQ(platform::Write_File(Own_File(Settings_File), longer), "");
    settings.airport_count = 5;
    ASSERT_EQ(Save_Settings(), "");

    platform::Bytes saved;
    ASSERT_TRUE(platform::Read_File(Own_File(Settings_File), saved));
    platform::Bytes expected = Settings_Bytes(settings);
    expected.insert(expected.end(), {1, 2, 3});
    EXPECT_EQ(saved, expected);
    platform::Delete_File(Own_File(Settings_File));
}

}  // namespace
}  // namespace skerrand
