#include <gtest/gtest.h>
#include <thread>

#include "platform/files.h"
#include "platform/program.h"
#include "platform/windows/paths.h"
#include "tests/platform/scratch_folder.h"

namespace {

using namespace platform;

const auto Content = Scratch_Folder::Content;

TEST(Windows_Files, PathsOfAnyLength) {
    const Scratch_Folder scratch;
    const std::string here = Current_Folder(), rest = here.substr(2);
    std::string deep = "Sub";
    CreateDirectoryW(L"Sub", nullptr);
    for (int i = 0; i < 4; ++i)
        CreateDirectoryW(windows::Native_Path(deep += '/' + std::string(100, 'x')).c_str(),
                         nullptr);
    for (const std::string& folder : {std::string("Sub"), deep, here + '/' + deep}) {
        const std::string file = folder + "\\Kept.dat";
        for (const char* text : {"old", "new"}) {
            EXPECT_EQ(Write_File(file, Bytes(text, text + 3)), "") << file;
            EXPECT_EQ(Content(file), text);
        }
        EXPECT_EQ(File_Names(folder, ".DAT"), std::vector<std::string>{"Kept.dat"}) << folder;
    }
    for (const std::string& way : {here, rest, std::string("none/..")})
        EXPECT_EQ(Content(way + "/./sub\\KEPT.dat"), "new") << way;
    for (const std::string& root : {here.substr(0, 2), here.substr(0, 3)})
        EXPECT_TRUE(Folder_Exists(root) && Folder_Exists(root + "\\WINDOWS")) << root;
    // What is not cut at 260 characters.
    EXPECT_EQ(windows::Native_Path("y:"), LR"(\\?\y:\)");
    EXPECT_EQ(windows::Native_Path("y:/a//b\\../c/"), LR"(\\?\y:\a\c)");
    EXPECT_EQ(windows::Native_Path("\\\\localhost\\c$/d"), LR"(\\?\UNC\localhost\c$\d)");
    for (const char* none : {"con", "Sub/nul", "\\\\.\\c:", "y:", "Sub/Kept.dat", "\\\\nobody\\c$"})
        EXPECT_FALSE(File_Names(none, "") || Folder_Exists(none)) << none;
}

TEST(Windows_Files, WhatOthersHold) {
    const Scratch_Folder scratch;
    Scratch_Folder::Put("Kept.dat", "old");
    const HANDLE holder = CreateFileW(L"Kept.dat", GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(Content("kept.dat"), "old") << "whatever they may do with it";
    EXPECT_NE(Write_File("Kept.dat", Bytes{}), "");
    EXPECT_EQ(File_Names("", ""), std::vector<std::string>{"Kept.dat"});
    // Released in time, it is replaced; nobody takes the new one away meanwhile.
    const std::string temporary = "Kept.dat." + std::to_string(GetCurrentProcessId()) + ".tmp";
    std::jthread other([&] {
        while (!File_Exists(temporary))
            Sleep(1);
        for (int i = 0; i < 3; ++i)
            Remove_Leftovers("Kept.dat");
        CloseHandle(holder);
    });
    EXPECT_EQ(Write_File("Kept.dat", Bytes{'n'}), "");
    EXPECT_EQ(Content("Kept.dat"), "n");
}

}  // namespace
