#include "selection/picks.h"

#include <gtest/gtest.h>

#include "scenery/database.h"

using namespace skerrand;

TEST(Picks, EqualEntriesTakeTheFirstOrTheTableStays) {
    const std::pair<const char*, const char*> airports[] = {
        {"Field", "AAAA"}, {"Field (AAAA)", ""}, {"Field", "AAAA"}, {"Field", "aaaa"}, {"", ""}};
    const std::pair<const char*, double> cases[] = {
        {"Field (AAAA)", 2}, {"Field (aaaa)", 3}, {"Field (AAAA) ()", 1}, {" ()", 4}, {"None", 9}};
    for (const auto& [entry, place] : cases) {
        airport_table.clear();  // of other tests
        for (const auto& [name, id] : airports) {
            Airport_Info& airport = airport_table.emplace_back();
            airport.airport_name = name;
            airport.icao_id = id;
            airport.lat = static_cast<double>(airport_table.size() - 1);
        }
        departure_airport.lat = destination_airport.lat = 9;
        Take_Picks(entry, "Field (aaaa)");
        EXPECT_EQ(departure_airport.lat, place) << entry;
        EXPECT_EQ(destination_airport.lat, 3);
        EXPECT_EQ(airport_table.capacity(), 0) << "the memory of a world";
    }
}
