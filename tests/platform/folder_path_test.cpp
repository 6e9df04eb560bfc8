#include <gtest/gtest.h>

#include "platform/headless/folder_list.h"
#include "tests/platform/scratch_folder.h"

namespace {

TEST(Folder_List, Its_Path_Is_Whole_And_Ends_Without_A_Separator_But_A_Roots) {
    const Scratch_Folder scratch;
    const std::string here = std::filesystem::current_path().string();
    const struct {
        std::string given, whole;
    } cases[] = {
        {"", here},
        {".", here},
        {"sub\\in/", here + "/sub\\in"},
        {"..", std::filesystem::current_path().parent_path().string()},
        {"/home/me/fs2002//", "/home/me/fs2002"},
        {"/home/./me/x/../fs2002\\scenery", "/home/me/fs2002\\scenery"},
        {"/", "/"},
        {"/../..", "/"},
        {"\\games", "\\games"},
        {"d:", "d:\\"},
        {"d:\\", "d:\\"},
        {"d:/", "d:/"},
        {"D:\\games\\..\\fs2002\\", "D:\\fs2002"},
        {"d:\\..", "d:\\"},
    };
    for (const auto& [given, whole] : cases) {
        EXPECT_EQ(platform::headless::Whole_Path(given), whole) << given;
    }
}

}  // namespace
