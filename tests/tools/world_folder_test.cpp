#include "tools/world_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>

#include "tools/invented_airports.h"
#include "tools/invented_airspaces.h"
#include "tools/world_files.h"

namespace {

namespace fs = std::filesystem;
using namespace world;

/// A folder of the test's own, gone when the test ends.
struct Scratch {
    fs::path folder;

    Scratch() {
        std::string name = (fs::temp_directory_path() / "world_XXXXXX").string();
        folder = mkdtemp(name.data());
    }
    ~Scratch() { fs::remove_all(folder); }
};

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
    const Scratch scratch;
    const std::pair<const char*, std::uint64_t> worlds[] = {{"a", 3}, {"b", 3}, {"c", 4}};
    for (const auto& [name, seed] : worlds) {
        ASSERT_EQ(Prepare_Folder(scratch.folder / name), "");
        ASSERT_EQ(Write_World(scratch.folder / name, Invent_World(60, seed)), "");
    }
    const auto contents = Contents(scratch.folder / "a");
    EXPECT_EQ(contents.at("fs2002.exe"), "");
    EXPECT_GE(contents.size(), 10U);
    EXPECT_EQ(contents, Contents(scratch.folder / "b"));
    EXPECT_NE(contents, Contents(scratch.folder / "c"));
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

TEST(World_Folder, Smaller_World_Keeps_Files_Of_The_Larger) {
    const Scratch scratch;
    const fs::path folder = scratch.folder / "w";
    std::size_t files = 0;
    for (const int count : {200, 5}) {
        ASSERT_EQ(Prepare_Folder(folder), "");
        EXPECT_FALSE(fs::exists(folder / "fs2002.exe")) << "an unfinished world looks whole";
        ASSERT_EQ(Write_World(folder, Invent_World(count, 1)), "");
        const std::size_t before = std::exchange(files, Contents(folder).size());
        if (before != 0) {
            EXPECT_LT(files, before);
        }
    }
}

TEST(World_Folder, Somebodys_Folder_Overwritten) {
    const Scratch scratch;
    std::ofstream(scratch.folder / "letter.txt") << "mine";
    EXPECT_NE(Prepare_Folder(scratch.folder), "");
    EXPECT_NE(Prepare_Folder(scratch.folder / "letter.txt"), "");
    const fs::path made = scratch.folder / "made";
    ASSERT_EQ(Prepare_Folder(made), "");
    ASSERT_EQ(Write_World(made, Invent_World(3, 1)), "");
    std::ofstream(made / "letter.txt") << "mine";
    const auto contents = Contents(scratch.folder);
    EXPECT_NE(Prepare_Folder(made), "");
    EXPECT_EQ(Contents(scratch.folder), contents);
}

TEST(World_Folder, Disk_Full_Not_Told) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
    const Scratch scratch;
    ASSERT_EQ(Prepare_Folder(scratch.folder), "");
    fs::create_symlink("/dev/full", scratch.folder / "scenery.cfg");
    const std::string fault = Write_World(scratch.folder, Invent_World(3, 1));
    EXPECT_NE(fault.find("scenery.cfg"), std::string::npos) << fault;
    EXPECT_FALSE(fs::exists(scratch.folder / "fs2002.exe"));
}

}  // namespace
