#include "selection/picker.h"

#include <gtest/gtest.h>

namespace skerrand {
namespace {

Airport_Info Named(const char* name, const char* id) {
    Airport_Info airport;
    airport.airport_name = name;
    airport.icao_id = id;
    return airport;
}

TEST(Picker, EqualEntriesTakeTheFirstOrAnotherAirport) {
    const std::vector<Airport_Info> table = {
        Named("Field", "AAAA"),
        Named("Field (AAAA)", ""),
        Named("Field", "AAAA"),
        Named("Field", "aaaa"),
        Named("", ""),
        Named("Field (", "AAAA)"),
        Named("Field (A", "AA)"),
    };
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
