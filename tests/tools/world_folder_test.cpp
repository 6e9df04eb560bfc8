#include "tools/world_folder.h"

#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>

#include "tests/platform/scratch_folder.h"
#include "tools/invented_airports.h"
#include "tools/invented_airspaces.h"
#include "tools/world_files.h"

namespace {

namespace fs = std::filesystem;
using namespace world;

World Invent_World(int count, std::uint64_t seed) {
    World made{Invent_Airports(count, seed), Coarse_Grid(Coarse_Rows * Coarse_Columns), 10};
    made.airspaces = Invent_Airspaces(made.airports, count / 2);
    made.airspace_files = count / 20;
    return made;
}

std::map<std::string, std::string> Contents(const fs::path& folder) {
    std::map<std::string, std::string> contents;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        std::ifstream stream(entry.path(), std::ios::binary);
        contents[fs::relative(entry.path(), folder)] = {std::istreambuf_iterator<char>(stream), {}};
    }
    return contents;
}

TEST(World_Folder, Same_Seed_Writes_Other_Files) {
    const Scratch_Folder scratch;
    const std::pair<const char*, std::uint64_t> worlds[] = {{"a", 3}, {"b", 3}, {"c", 4}};
    for (const auto& [name, seed] : worlds) {
        ASSERT_EQ(Prepare_Folder(name), "");
        ASSERT_EQ(Write_World(name, Invent_World(60, seed)), "");
    }
    const auto contents = Contents("a");
    EXPECT_EQ(contents.at("fs2002.exe"), "");
    EXPECT_GE(contents.size(), 10U);
    EXPECT_EQ(contents, Contents("b"));
    EXPECT_NE(contents, Contents("c"));
}

TEST(World_Folder, Airspace_Dealt_Out_Twice_Or_Never) {
    for (const std::size_t shares : {1U, 2U, 7U, 300U}) {
        World made = Invent_World(60, 3);
        made.airspace_files = static_cast<int>(shares);
        Order_By_Area(made.airports);
        std::size_t airports = 0, airspaces = 0, alone = 0;
        std::set<const Airspace_Facts*> first_ones;
        for (const World_File& file : Plan_Files(made)) {
            airports += file.airports.size();
            airspaces += file.airspaces.size();
            alone += file.airports.empty() ? 1U : 0U;
            if (!file.airspaces.empty()) first_ones.insert(file.airspaces.data());
        }
        EXPECT_EQ(airports, 60U);
        EXPECT_EQ(airspaces, made.airspaces.size());
        EXPECT_EQ(first_ones.size(), std::min(made.airspaces.size(), shares));
        EXPECT_GE(alone, shares / 2);
    }
}

TEST(World_Folder, Somebodys_Folder_Overwritten) {
    const Scratch_Folder scratch;
    Scratch_Folder::Put("letter.txt", "mine");
    EXPECT_NE(Prepare_Folder("."), "");
    EXPECT_NE(Prepare_Folder("letter.txt"), "");
    ASSERT_EQ(Prepare_Folder("made"), "");
    Scratch_Folder::Put("made/letter.txt", "mine");
    const auto contents = Contents(".");
    EXPECT_NE(Prepare_Folder("made"), "");
    EXPECT_EQ(Contents("."), contents);
}

TEST(World_Folder, Disk_Full_Not_Told) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
    const Scratch_Folder scratch;
    ASSERT_EQ(Prepare_Folder("."), "");
    fs::create_symlink("/dev/full", "scenery.cfg");
    const std::string fault = Write_World(".", Invent_World(3, 1));
    EXPECT_NE(fault.find("scenery.cfg"), std::string::npos) << fault;
    EXPECT_FALSE(fs::exists("fs2002.exe"));
}

}  // namespace
