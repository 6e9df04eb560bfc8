#include "app/settings.h"

#include <gtest/gtest.h>

#include "tests/scenery/bgl_builder.h"

using namespace skerrand;

const Settings_Rec Sample{
    "Skerrand v2.0", 1, 1, "/caf\xE9", 27000, 0x01020304, 49, 50, 107, 109, -65};

TEST(Settings, FieldAtAnotherOffsetOrCutFileTakenForWhole) {
    const platform::Bytes whole = Settings_Bytes(Sample), head = {13, 0}, marks = {1, 1, 5, 0};
    EXPECT_EQ(whole, bgl::Join({head, bgl::Text("Skerrand v2.0"), marks, bgl::Text("/caf\xE9"),
                                bgl::Longs({27000, 0x01020304, 49, 50, 107, 109, -65})}));
    Settings_Rec record;
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(Parse_Settings(bgl::Prefix(whole, length), record)) << length;
    EXPECT_EQ(record, Settings_Rec{});
    ASSERT_TRUE(Parse_Settings(whole, record));
    EXPECT_EQ(record, Sample);
    record.airspace_file_count = -1;
    EXPECT_FALSE(Parse_Settings(Settings_Bytes(record), record)) << "it would size a table";
    Set_App_Path("/");
    EXPECT_EQ(app_path, "") << "its files would be looked for on a server";
}
