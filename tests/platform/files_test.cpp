#include "platform/files.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "platform/code_page.h"
#include "tests/platform/scratch_folder.h"

namespace {

using namespace platform;

std::string Content(std::string_view path) {
    Bytes bytes;
    return Read_File(path, bytes) ? std::string(bytes.begin(), bytes.end()) : "(unread)";
}

TEST(Files, Names_Are_Found_In_Any_Case_The_Exact_One_First) {
    const Scratch_Folder scratch;
    Scratch_Folder::Put("Scenery/Bgl/AP1.bgl", "capital");
    Scratch_Folder::Put("Scenery/Bgl/ap1.bgl", "small");
    Scratch_Folder::Put("Scenery/Bgl/Ap2.BGL", "second");
    Scratch_Folder::Put("Scenery/Bgl/aP2.BGL", "third");
    Scratch_Folder::Put("Scenery/\xC3\x84rger.bgl", "umlaut");
    Scratch_Folder::Put("scenery2/x", "x");
    const std::pair<std::string, std::string> cases[] = {
        {"Scenery/Bgl/ap1.bgl", "small"},
        {"SCENERY\\bgl\\AP1.bgl", "capital"},
        {"scenery//\\BGL/ap1.BGL", "capital"},  // the first by the bytes of the equal ones
        {"scenery\\bgl\\ap2.bgl", "second"},
        {scratch.Path() + "\\SCENERY\\\xE4RGER.BGL", "umlaut"},
        {"Scenery/../scenery/.\\bgl/AP1.bgl", "capital"},
        {"Scenery/Bgl", "(unread)"},
        {"Scenery/Bgl/ap3.bgl", "(unread)"},
        {"Scenery/ap1.bgl/x", "(unread)"},
        {std::string("Scenery/Bgl/ap1.bgl\0x", 21), "(unread)"},
    };
    for (const auto& [path, content] : cases)
        EXPECT_EQ(Content(path), content) << path;
    EXPECT_TRUE(Folder_Exists(""));
    EXPECT_TRUE(Folder_Exists("SCENERY/"));
    EXPECT_FALSE(Folder_Exists("Scenery/Bgl/ap1.bgl"));
    EXPECT_FALSE(File_Exists("Scenery"));
}

TEST(Files, A_Folder_Without_The_Rest_Of_The_Path_Is_Left_For_The_Next_In_Another_Case) {
    const Scratch_Folder scratch;
    Scratch_Folder::Put("Data/FS2002/fs2002.exe", "right");
    Scratch_Folder::Put("Data/Scenery/x", "");
    Scratch_Folder::Put("data/fs2002/other", "");
    Scratch_Folder::Put("dATA", "a file");
    EXPECT_EQ(Content("data\\fs2002\\fs2002.exe"), "right");
    EXPECT_EQ(Content("DATA/fs2002/../fs2002/FS2002.EXE"), "right");
    // What is new goes where the way gets furthest, of equal ones the first.
    EXPECT_EQ(Write_File("data/scenery/New", Bytes{}) + Write_File("DATA/New", Bytes{}), "");
    EXPECT_TRUE(std::filesystem::exists("Data/Scenery/New"));
    EXPECT_TRUE(std::filesystem::exists("Data/New"));
}

TEST(Files, A_File_Made_After_A_Look_Into_Its_Folder_Is_Found) {
    const Scratch_Folder scratch;
    for (const std::string name : {"b", "c"}) {
        EXPECT_FALSE(File_Exists(Upper_Case(name)));
        Scratch_Folder::Put(name, "");
        EXPECT_TRUE(File_Exists(Upper_Case(name)));
        // As if nothing had changed for long.
        std::filesystem::last_write_time(
            ".", std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    }
}

TEST(Files, Names_Come_In_The_Order_Of_Their_Small_Letters_Without_Folders_And_Others) {
    const Scratch_Folder scratch;
    for (const char* name : {"b.bgl", "A.BGL", "a.bgl", "C_.bgl", "CB.Bgl", "d.bglx",
                             "\xC3\x89.bgl", "\u0416.bgl", "Sub.bgl/in.bgl"}) {
        Scratch_Folder::Put(name, "");
    }
    std::filesystem::create_symlink("b.bgl", "link.bgl");
    std::filesystem::create_symlink("nowhere", "loose.bgl");
    const std::vector<std::string> names = {"?.bgl",  "A.BGL",  "a.bgl",    "b.bgl",
                                            "C_.bgl", "CB.Bgl", "link.bgl", "\xC9.bgl"};
    EXPECT_EQ(File_Names("", ".bgl"), names);
    EXPECT_FALSE(File_Exists("?.bgl"));
    EXPECT_EQ(File_Names("none", ".bgl"), std::nullopt);
    EXPECT_EQ(File_Names("b.bgl", ""), std::nullopt);
}

TEST(Files, A_Failed_Write_Leaves_The_Old_File_And_Nothing_Else) {
    const Scratch_Folder scratch;
    Scratch_Folder::Put("Kept.dat", "old");
    const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{1000, limit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);  // stands for a full disk
    const std::string reason = Write_File("kept.dat", Bytes(5000, 1));
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, old_handler);
    EXPECT_EQ(reason, "File too large");
    EXPECT_EQ(Content("Kept.dat"), "old");
    EXPECT_NE(Write_File("none/new.dat", Bytes(3)), "");
    std::filesystem::create_directory("folder");
    EXPECT_NE(Write_File("folder", Bytes(3)), "");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator("."), {}), 2);
}

TEST(Files, A_Write_Replaces_The_File_Of_The_Same_Name_In_Another_Case_And_The_Target_Of_A_Link) {
    const Scratch_Folder scratch;
    Scratch_Folder::Put("Data/Kept.dat", "something longer");
    chmod("Data/Kept.dat", 0600);
    std::filesystem::create_symlink("Data/Kept.dat", "link.dat");
    EXPECT_EQ(Write_File("DATA\\kept.DAT", Bytes{'n', 'e', 'w'}), "");
    EXPECT_EQ(Content("Data/Kept.dat"), "new");
    EXPECT_EQ(Write_File("link.dat", Bytes{}), "");
    EXPECT_EQ(Content("Data/Kept.dat"), "");
    EXPECT_TRUE(std::filesystem::is_symlink("link.dat"));
    EXPECT_EQ(std::filesystem::status("Data/Kept.dat").permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST(Files, Reading_Gives_All_Bytes_Then_Zeros_And_Nothing_Of_The_File_Before) {
    const Scratch_Folder scratch;
    Scratch_Folder::Put("short", "abc");
    mkfifo("pipe", 0600);
    Bytes bytes(100, 0xFF);
    ASSERT_TRUE(Read_File("short", bytes, 2));
    EXPECT_EQ(bytes, (Bytes{'a', 'b', 'c', 0, 0}));
    for (const char* path : {"pipe", "/dev/zero", "missing"}) {
        bytes.assign(3, 1);
        EXPECT_FALSE(Read_File(path, bytes, 5)) << path;
        EXPECT_TRUE(bytes.empty()) << path;
    }
    Scratch_Folder::Put("huge", "");
    std::filesystem::resize_file("huge", Largest_File + 1);  // takes no room on the disk
    EXPECT_FALSE(Read_File("huge", bytes));

    Bytes part(2);
    EXPECT_TRUE(Read_File_Part("short", 1, part));
    EXPECT_EQ(part, (Bytes{'b', 'c'}));
    EXPECT_FALSE(Read_File_Part("short", 2, part));
    EXPECT_FALSE(Read_File_Part("short", std::size_t{0} - 1, part));
}

}  // namespace
