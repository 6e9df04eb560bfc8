#include "scenery/catalogue.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "app/settings.h"
#include "platform/code_page.h"
#include "tests/platform/scratch_folder.h"

namespace skerrand {
namespace {

TEST(Catalogue, AreaWithAnothersText) {
    const std::tuple<const char*, const char*, std::vector<std::string>> cases[] = {
        {"other line ends not known",
         "[Area.1]\rTitle=A\n\n\r\n[Area.2]\nTitle=B\r[Area.3]\r\nTitle=C",
         {"A", "B", "C"}},
        {"letters' case minded", "[AREA.001]\nTITLE=Al\n[aREA.2]\ntitle=Be", {"Al", "Be"}},
        {"blanks kept, or tabs taken for blanks", "[Area.1]\nTitle= \tA b \t \n", {"\tA b \t"}},
        {"key ahead of a blank found", "[Area.1]\nTitle =A\n[Area.2]\nTitle=\n", {"", ""}},
        {"key in a longer name not found", "[Area.1]\nSubtitle=A\nTitle=B", {"A"}},
        {"indented head not seen", "  [Area.1]\nTitle=A\n [Area.2]  \nTitle=B", {"A", "B"}},
        {"indented head taken for another", "[Area.1]\nTitle=A\n  [Area.1]\nTitle=B", {"A", "B"}},
        {"head with text behind it seen", "[Area.1]\n[Area.2] x\nTitle=B\n[Area.3]]\n", {"B"}},
        {"text of a section that is no area taken",
         "[General]\nTitle=G\n[Area.1]\n[Other]\nTitle=O\n[Area.2]\nTitle=B\n[End]\nTitle=E",
         {"", "B"}},
        {"repeated head gets its own text",
         "[Area.1]\nTitle=A\n[Area.2]\nTitle=B\n[Area.1]\nTitle=C\n[Area.3]\nTitle=D",
         {"A", "B", "A", "D"}},
        {"head repeated at once runs on", "[Area.1]\nTitle=A\n[Area.1]\nTitle=B", {"", "A"}},
        // From [Area.2] to [x] it is 16 characters backwards, so that its text has 18.
        {"next head ahead of this one measured wrongly",
         "[Area.1]\nTitle=A\n\n[x]\nTitle=Xyz\n\n[Area.2]\nTitle=Bcdef\n[x]\n",
         {"A", "Bc"}},
        {"head inside another line not seen as the first",
         "Title=0 [Area.2]\n[Area.1]\nTitle=A\n[Area.2]\nTitle=B",
         {"", "A"}},
        {"head inside another head not seen as the first",
         "[[Area.1[]\nTitle=A\n[Area.1[]\nTitle=B",
         {"", "A"}},
    };
    for (const auto& [fault, text, titles] : cases) {
        std::vector<std::string> found;
        for (const Scenery_Area& area : Parse_Scenery_Cfg(text))
            found.push_back(area.title);
        EXPECT_EQ(found, titles) << fault;
    }
}

TEST(Catalogue, FieldFromAnotherKeyOrMoreAreasThanTheirCounterHolds) {
    std::string text =
        "[Area.001]\nLocal=l\nRemote=r\nRequired=q\nLayer=y\nActive=a\nTexture_ID=x\nTitle=t\n";
    EXPECT_EQ(Parse_Scenery_Cfg(text),
              (std::vector<Scenery_Area>{{"t", "x", "a", "y", "q", "r", "l"}}));
    for (std::size_t i = 0; i <= Most_Areas; ++i)
        text += "[Area.1]\n";
    EXPECT_EQ(Parse_Scenery_Cfg(text).size(), Most_Areas);
}

TEST(Catalogue, FolderNotFoundOrLeftAsGiven) {
    const Scratch_Folder scratch;  // where a relative value is looked for first
    for (const char* folder :
         {"Scenery", "MyScenery/Scenery", "Add/On/Scenery", "x:/deep/scenery", "x:/x:/scenery"}) {
        std::filesystem::create_directories(std::filesystem::path("Sim") / folder);
    }
    fs_root = scratch.Path() + "/Sim";
    const std::string root = platform::Lower_Case(fs_root);
    // What is given as a whole path has the program's separators all through.
    std::string whole = root + "\\add\\on\\scenery";
    std::ranges::replace(whole, '/', '\\');
    using Drives = std::vector<std::string>;
    const std::tuple<std::string, Drives, std::string> cases[] = {
        {"scenery", {}, root + "\\scenery"},
        {" Add\\On ", {}, root + "\\add\\on\\scenery"},
        {"Add/On/SCENERY", {"c: ", "d:"}, root + "\\add\\on\\scenery"},
        {fs_root + "/ADD/on", {}, whole},
        {"nowhere", {}, ""},
        {"myscenery", {}, root + "\\myscenery\\scenery"},
        {"\\\\Net\\Share\\Deep", {"C: DISK", "X: \\\\NET\\share"}, root + "\\x:\\deep\\scenery"},
        {"ab\\AB", {"X: aB"}, root + "\\x:\\x:\\scenery"},
        {"", {}, ""}};
    for (const auto& [value, drives, folder] : cases) {
        scenery_areas.assign(1, {});
        scenery_areas[0].local = value;
        Resolve_Local_Paths(drives);
        EXPECT_EQ(scenery_areas[0].local, folder) << value;
    }
    EXPECT_FALSE(Read_Scenery_Cfg("no_such_scenery.cfg"));
    EXPECT_TRUE(scenery_areas.empty()) << "left from another file";
}

}  // namespace
}  // namespace skerrand
