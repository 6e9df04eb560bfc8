#include "scenery/catalogue.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>

#include "app/settings.h"
#include "platform/code_page.h"
#include "tests/platform/scratch_folder.h"

using namespace skerrand;

TEST(Catalogue, AreaWithAnothersText) {
    // "#1" stands for "[Area.1]". From [Area.2] to the [x] ahead of it it is 16 characters
    // backwards, so that its text has 18.
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"other line ends not known", "#1\rTitle=A\n\n\r\n#2\nTitle=B\r#3\r\nTitle=C", "A|B|C|"},
        {"letters' case minded", "[AREA.001]\nTITLE=Al\n[aREA.2]\ntitle=Be", "Al|Be|"},
        {"blanks kept, or tabs taken for blanks", "#1\nTitle= \tA b \t \n", "\tA b \t|"},
        {"key ahead of a blank found", "#1\nTitle =A\n#2\nTitle=\n", "||"},
        {"key in a longer name not found", "#1\nSubtitle=A\nTitle=B", "A|"},
        {"indented head not seen", "  #1\nTitle=A\n #2  \nTitle=B", "A|B|"},
        {"indented head taken for another", "#1\nTitle=A\n  #1\nTitle=B", "A|B|"},
        {"head with text behind it seen", "#1\n#2 x\nTitle=B\n#3]\n", "B|"},
        {"text of no area taken", "[No]\nTitle=N\n#1\n[O]\nTitle=O\n#2\nTitle=B\n[E]\nTitle=E",
         "|B|"},
        {"repeated head gets its own", "#1\nTitle=A\n#2\nTitle=B\n#1\nTitle=C\n#3\nTitle=D",
         "A|B|A|D|"},
        {"head repeated at once runs on", "#1\nTitle=A\n#1\nTitle=B", "|A|"},
        {"next head ahead measured wrongly",
         "#1\nTitle=A\n\n[x]\nTitle=Xyz\n\n#2\nTitle=Bcdef\n[x]\n", "A|Bc|"},
        {"head inside a line not seen as the first", "Title=0 #2\n#1\nTitle=A\n#2\nTitle=B", "|A|"},
    };
    for (const auto& [fault, text, titles] : cases) {
        std::string found;
        for (const Scenery_Area& area :
             Parse_Scenery_Cfg(std::regex_replace(text, std::regex("#(.)"), "[Area.$1]")))
            found += area.title + '|';
        EXPECT_EQ(found, titles) << fault;
    }
}

TEST(Catalogue, FieldFromAnotherKey) {
    EXPECT_EQ(Parse_Scenery_Cfg("[Area.001]\nLocal=l\nRemote=r\nRequired=q\nLayer=y\nActive=a\n"
                                "Texture_ID=x\nTitle=t\n"),
              (std::vector<Scenery_Area>{{"t", "x", "a", "y", "q", "r", "l"}}));
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
    const std::tuple<std::string, std::vector<std::string>, std::string> cases[] = {
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
        scenery_areas = {{"", "", "", "", "", "", value}};
        Resolve_Local_Paths(drives);
        EXPECT_EQ(scenery_areas[0].local, folder) << value;
    }
}
