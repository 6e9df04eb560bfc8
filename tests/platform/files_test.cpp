#include "platform/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/code_page.h"
#include "tests/platform/scratch_folder.h"

namespace {

namespace fs = std::filesystem;
using namespace platform;
using Names = std::vector<std::string>;

const auto Content = Scratch_Folder::Content;

TEST(Files, Names_Are_Found_In_Any_Case_The_Exact_One_First) {
    const Scratch_Folder scratch;
    for (const char* name : {"Scenery/Bgl/AP1.bgl", "Scenery/Bgl/ap1.bgl", "Scenery/Bgl/Ap2.BGL",
                             "Scenery/Bgl/aP2.BGL", "Scenery/\xC3\x84\xC3\xB6.bgl", "scenery2/x",
                             "Data/FS2002/fs2002.exe", "Data/Sub/x", "data/fs2002/x", "dATA"})
        Scratch_Folder::Put(name, fs::path(name).filename());
    const std::pair<std::string, std::string> cases[] = {
        {"Scenery/Bgl/ap1.bgl", "ap1.bgl"},
        {"SCENERY\\bgl\\AP1.bgl", "AP1.bgl"},
        {"scenery//\\BGL/ap1.BGL", "AP1.bgl"},  // the first by the bytes of the equal ones
        {"scenery\\bgl\\ap2.bgl", "Ap2.BGL"},
        {scratch.Path() + "\\SCENERY\\\xE4\xD6.BGL", "\xC3\x84\xC3\xB6.bgl"},
        {"../Scenery/none/../../scenery/.\\bgl/AP1.bgl", "(unread)"},
        {"none/../Scenery/none/../../scenery/.\\bgl/AP1.bgl", "AP1.bgl"},
        // A folder that does not hold the rest of the path is left for the next one.
        {"data\\FS2002\\fs2002.exe", "fs2002.exe"},
        {"data\\fs2002\\fs2002.exe", "(unread)"},  // this one stands as it is called
        {"DATA/FS2002/FS2002.exe", "fs2002.exe"},
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
    // What is new goes where the way gets furthest, of equal ones the first.
    EXPECT_EQ(Write_File("data/sub/New", Bytes{}) + Write_File("DATA/New", Bytes{}), "");
    EXPECT_TRUE(fs::exists("Data/Sub/New"));
    EXPECT_TRUE(fs::exists("Data/New"));
}

TEST(Files, A_File_Made_After_A_Look_Into_Its_Folder_Is_Found) {
    const Scratch_Folder scratch;
    const auto now = fs::file_time_type::clock::now();
    const auto hour = std::chrono::hours(1);
    // Two changes within one step of the file system's clock, and two that are long past.
    for (const auto& [first, second] :
         {std::pair(now, now), std::pair(now - 2 * hour, now - hour)}) {
        const std::string name = first == now ? "b" : "c";
        fs::last_write_time(".", first);
        EXPECT_FALSE(File_Exists(Upper_Case(name)));
        Scratch_Folder::Put(name, "");
        fs::last_write_time(".", second);
        EXPECT_TRUE(File_Exists(Upper_Case(name)));
    }
}

TEST(Files, Names_Come_In_The_Order_Of_Their_Small_Letters_Without_Folders_And_Others) {
    const Scratch_Folder scratch;
    for (const char* name : {"b.bgl", "A.BGL", "a.bgl", "C_.bgl", "CB.Bgl", "d.bglx",
                             "\xC3\x89.bgl", "\u0416.bgl", "sub.bgl/in.bgl", "\u0416/x", "Sea/x"})
        Scratch_Folder::Put(name, "");
    fs::create_symlink("b.bgl", "link.bgl");
    fs::create_symlink("nowhere", "loose.bgl");
    fs::create_directory_symlink("Sea", "e.bgl");
    const Names names = {"?.bgl",  "A.BGL",  "a.bgl",    "b.bgl",
                         "C_.bgl", "CB.Bgl", "link.bgl", "\xC9.bgl"};
    EXPECT_EQ(File_Names("", ".bgl"), names);
    EXPECT_FALSE(File_Exists("?.bgl"));
    EXPECT_EQ(File_Names("none", ".bgl"), std::nullopt);
    EXPECT_EQ(Subfolders(""), (Names{"\u0416", "e.bgl", "Sea", "sub.bgl"}));
}

TEST(Files, What_Killed_And_Failed_Writes_Leave_Goes_But_Not_What_Is_Being_Written) {
    const Scratch_Folder scratch;
    const Names others = {"Kept.dat",     "Kept.dat..tmp",   "Kept.dat.7",
                          "Kept.dat.tmp", "Kept.dat.7x.tmp", "xKept.dat.7.tmp"};
    for (const std::string& name : others)
        Scratch_Folder::Put(name, "");
    Scratch_Folder::Put("Kept.dat.7.tmp", "");
    Scratch_Folder::Put("Kept.dat.12345678901.tmp", "");
    const int writer = open("Kept.dat.7.tmp", O_RDWR | O_CLOEXEC);
    flock(writer, LOCK_EX);
    Remove_Leftovers("KEPT.DAT");
    EXPECT_TRUE(File_Exists("Kept.dat.7.tmp"));
    EXPECT_FALSE(File_Exists("Kept.dat.12345678901.tmp"));
    close(writer);
    // Told by its own reason, not by that of clearing up behind it.
    const std::string temporary = "Kept.dat." + std::to_string(getpid()) + ".tmp";
    fs::create_directory(temporary);
    EXPECT_EQ(Write_File("Kept.dat", Bytes{}), "File exists");
    fs::remove(temporary);
    fs::create_directory("folder");
    EXPECT_EQ(Write_File("Kept.dat", Bytes{}), "");
    for (const char* path : {"none/new.dat", "folder"})
        EXPECT_NE(Write_File(path, Bytes(3)), "") << path;
    EXPECT_EQ(File_Names("", "")->size(), others.size());
}

TEST(Files, A_Write_Replaces_The_File_Of_The_Same_Name_In_Another_Case_And_The_Target_Of_A_Link) {
    const Scratch_Folder scratch;
    Scratch_Folder::Put("Data/Kept.dat", "something longer");
    chmod("Data/Kept.dat", 0600);
    fs::create_symlink("Data/Kept.dat", "link.dat");
    EXPECT_EQ(Write_File("DATA\\kept.DAT", Bytes{'n', 'e', 'w'}), "");
    EXPECT_EQ(Content("Data/Kept.dat"), "new");
    EXPECT_EQ(Write_File("link.dat", Bytes{}), "");
    EXPECT_EQ(Content("Data/Kept.dat"), "");
    EXPECT_TRUE(fs::is_symlink("link.dat"));
    EXPECT_EQ(fs::status("Data/Kept.dat").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    Delete_File("DATA/kept.dat");
    EXPECT_FALSE(fs::exists("Data/Kept.dat"));
}

TEST(Files, Reading_Gives_All_Bytes_Then_Zeros_And_Nothing_Of_The_File_Before) {
    const Scratch_Folder scratch;
    Scratch_Folder::Put("short", "abc");
    mkfifo("pipe", 0600);
    Scratch_Folder::Put("huge", "");
    fs::resize_file("huge", Largest_File + 1);  // takes no room on the disk
    Bytes bytes(100, 0xFF);
    ASSERT_TRUE(Read_File("short", bytes, 2));
    EXPECT_EQ(bytes, (Bytes{'a', 'b', 'c', 0, 0}));
    for (const char* path : {"pipe", "/dev/zero", "missing", "huge"}) {
        bytes.assign(3, 1);
        EXPECT_FALSE(Read_File(path, bytes, 5)) << path;
        EXPECT_TRUE(bytes.empty()) << path;
    }
    Bytes part(2);
    EXPECT_TRUE(Read_File_Part("short", 1, part));
    EXPECT_EQ(part, (Bytes{'b', 'c'}));
    EXPECT_FALSE(Read_File_Part("short", 2, part));
    EXPECT_FALSE(Read_File_Part("short", std::size_t{0} - 1, part));
}

}  // namespace
