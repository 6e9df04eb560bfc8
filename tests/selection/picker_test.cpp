#include "selection/picker.h"

#include <gtest/gtest.h>

namespace skerrand {
namespace {

TEST(Picker, EqualEntriesTakeTheFirstOrAnotherAirport) {
    const std::string names[] = {"Field", "Field (AAAA)", "Field",    "Field",
                                 "",      "Field (",      "Field (A", std::string(70, 'x')};
    const char* ids[] = {"AAAA", "", "AAAA", "aaaa", "", "AAAA)", "AA)", "AAAA"};
    std::vector<Airport_Info> table(std::size(names));
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i].airport_name = names[i];
        table[i].icao_id = ids[i];
    }
    const auto place = [&](const char* text) { return Find_Picks(table, text, "").departure; };
    EXPECT_EQ(place("Field (AAAA)"), 2);
    EXPECT_EQ(place("Field (aaaa)"), 3);
    EXPECT_EQ(place("Field (AAAA) ()"), 1);
    EXPECT_EQ(place(" ()"), 4);
    EXPECT_EQ(place("Field (A"), -1);
    for (const Airport_Info& airport : table) {
        const std::string entry = List_Entry(airport);
        std::ptrdiff_t last = -1;
        for (std::size_t i = 0; i < table.size(); ++i) {
            if (List_Entry(table[i]) == entry) last = static_cast<std::ptrdiff_t>(i);
        }
        EXPECT_EQ(Find_Picks(table, "", entry).destination, last) << entry;
    }
}

}  // namespace
}  // namespace skerrand
