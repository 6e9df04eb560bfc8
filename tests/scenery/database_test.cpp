#include "scenery/database.h"

#include <cmath>
#include <gtest/gtest.h>

#include "app/fields.h"
#include "tests/scenery/bgl_builder.h"

using namespace skerrand;

using bgl::Bytes, bgl::Join, bgl::Longs, bgl::Prefix;

/// The settings' test holds the bytes of each to those expected.
template <typename... Values>
static Bytes Stored(const Values&... values) {
    Field_Writer file;
    Fields(file, values...);
    return file.bytes;
}
constexpr std::size_t Last_Record = 64;

/// An airport with one of everything, neighbours of one type different.
static Airport_Info Full_Airport() {
    const std::vector<Runway_Info> runways{{"9L", "27R", 3, 4, 5, 6, 7, 1, 9, 10, 11}};
    const std::vector<Ils_Info> ils{{"ILS", 12, 13, 9, "109.5"}};
    const std::vector<Parking_Info> parkings{{"GATE 1", 18, 19, 20}};
    const std::vector<Taxi_Point> points{{15, 16, 17}};
    const std::vector<Taxi_Path> paths{{21, 22, 23, "B"}};
    return {"Name", "ICAO", 1.5, -2.5,    "c", "g",    "t",      "d",
            "a",    "n",    "i", runways, ils, points, parkings, paths};
}

static std::vector<Airport_Info> Sample() {
    std::vector<Airport_Info> airports(3, Full_Airport());
    airports[1] = {};
    airports[2].icao_id = "caf\xE9";
    airports[2].taxi_points.resize(3);
    airports[2].runways.clear();
    return airports;
}

TEST(Database, FieldOutOfItsPlace) {
    const std::int16_t none = 0, one = 1, nine = 9;
    const Bytes expected = Stored(
        "Name", "ICAO", 1.5, -2.5, "c", "g", "t", "d", "a", "n", "i", one, 2, 0, "9L", "27R", 3.0,
        4.0, 5.0, 6.0, 7, one, nine, 10, 11, "", "", 0.0, 0.0, 0.0, 0.0, 0, none, none, 0, 0, 1,
        one, 2, 0, "ILS", 12.0, 13.0, nine, "109.5", "", 0.0, 0.0, none, "", 1, one, 1, 0, 15, 16.0,
        17.0, 1, one, 1, 0, "GATE 1", 18.0, 19.0, 20, 1, one, 1, 0, 21, 22, 23, "B", 1);
    EXPECT_EQ(Airport_Table_Bytes(std::vector{Full_Airport()}),
              Join({expected, Bytes(Last_Record)}));
    EXPECT_EQ(Airport_Table_Bytes({}), Bytes(Last_Record));
    EXPECT_EQ(Airspace_List_Bytes(std::vector<std::string>{"a"}), Stored("a", ""));
    EXPECT_EQ(Airspace_List_Bytes({}), Bytes(2));
}

TEST(Database, CutFileTakenForWhole) {
    const Bytes whole = Airport_Table_Bytes(Sample());
    std::vector<Airport_Info> airports;
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const bool expected = length == whole.size() || length == whole.size() - Last_Record;
        EXPECT_EQ(Parse_Airport_Table(Prefix(whole, length), 3, airports), expected) << length;
        EXPECT_EQ(airports, expected ? Sample() : std::vector<Airport_Info>()) << length;
    }
}

TEST(Database, DamageTakenForData) {
    const Bytes good = Airport_Table_Bytes(std::vector{Full_Airport()});
    const std::size_t runways = 2 + 4 + 2 + 4 + 16 + 7 * 3;
    const std::tuple<const char*, std::size_t, Bytes> cases[] = {
        {"latitude", 12, Stored(std::nan(""))},
        {"runway's end", runways + 10 + 9 + 24, Stored(HUGE_VAL)},
        {"dimensions", runways, {2, 0}},
        {"array without dimensions, but with elements", runways, {0, 0}},
        {"elements but none in use", runways + 2, Longs({1})},
        {"element too many", runways + 2, Longs({3})},
        {"negative size", runways + 2, Longs({-2})},
        {"huge size", runways + 2, Longs({0x7FFFFFFF})},
        {"lower bound", runways + 6, Longs({1})},
        {"count of runways", runways + 10 + 57 + 52, Longs({2})},
        {"record behind the last", good.size() - Last_Record, {63, 0}},
    };
    std::vector<Airport_Info> airports;
    for (const auto& [what, at, bytes] : cases) {
        Bytes bad = good;
        bgl::Put(bad, at, bytes);
        EXPECT_FALSE(Parse_Airport_Table(bad, 1, airports)) << what;
        EXPECT_TRUE(airports.empty()) << what;
    }
    for (const std::int32_t count : {INT32_MIN, -1, 0, 3, INT32_MAX})
        EXPECT_FALSE(Parse_Airport_Table(good, count, airports)) << count;
    EXPECT_TRUE(Parse_Airport_Table(good, 2, airports)) << "the empty record for an airport";
}
