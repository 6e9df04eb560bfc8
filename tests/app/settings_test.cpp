#include "app/settings.h"

#include <gtest/gtest.h>

#include "tests/scenery/bgl_builder.h"

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
    const platform::Bytes head = {13, 0}, marks = {1, 1, 10, 0};
    const platform::Bytes expected =
        bgl::Join({head, bgl::Text("Skerrand v2.0"), marks, bgl::Text("/home/caf\xE9"),
                   bgl::Longs({27000, 0x01020304, 49, 50, 107, 109, -65})});
    EXPECT_EQ(Settings_Bytes(Sample()), expected);
}

TEST(Settings, CutFileTakenForWhole) {
    const platform::Bytes whole = Settings_Bytes(Sample());
    Settings_Rec record;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(Parse_Settings(bgl::Prefix(whole, length), record)) << length;
        EXPECT_EQ(record, Settings_Rec{}) << length;
    }
    ASSERT_TRUE(Parse_Settings(whole, record));
    EXPECT_EQ(record, Sample());
    record.airspace_file_count = -1;
    EXPECT_FALSE(Parse_Settings(Settings_Bytes(record), record)) << "it would size a table";
}

TEST(Settings, SavingCutsTheBytesBehindTheRecord) {
    app_path = testing::TempDir();
    app_path.pop_back();
    settings = Sample();
    const platform::Bytes rest = {1, 2, 3};
    const platform::Bytes longer = bgl::Join({Settings_Bytes(settings), rest});
    ASSERT_EQ(platform::Write_File(Own_File(Settings_File), longer), "");
    settings.airport_count = 5;
    ASSERT_EQ(Save_Settings(), "");
    platform::Bytes saved;
    ASSERT_TRUE(platform::Read_File(Own_File(Settings_File), saved));
    EXPECT_EQ(saved, bgl::Join({Settings_Bytes(settings), rest}));
    platform::Delete_File(Own_File(Settings_File));
}

}  // namespace
}  // namespace skerrand
