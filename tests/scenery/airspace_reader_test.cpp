#include "scenery/airspace_reader.h"

#include <gtest/gtest.h>
#include <sstream>

#include "scenery/magnetic.h"
#include "selection/picks.h"
#include "tests/scenery/bgl_builder.h"

using namespace skerrand;

using namespace bgl;

constexpr std::int32_t Lat_30 = 3333917, Lat_45 = 5000875, Lon_30 = 357913941, Lon_45 = 1 << 29;

static Bytes Box(std::int32_t south, std::int32_t west, std::int32_t north, std::int32_t east) {
    return Record(0x1000B, Longs({south, west, north, east}));
}
const Bytes Round_Both = Box(0, 0, 1 << 24, 1 << 30);
const Bytes Round_Departure = Box(Lat_30, 0, 1 << 24, 1 << 30);

static Bytes Object(const std::vector<Bytes>& records) {
    return Record(1, Join({Longs({5, 0}), Join(records)}));
}

/// With departure at 45, 45 and destination at 30, 30.
static bool Search(const Bytes& image) {
    departure_airport.lat = departure_airport.lon = 45;
    destination_airport.lat = destination_airport.lon = 30;
    departure_airspaces.clear();
    destination_airspaces.clear();
    bgl_bytes = image;
    return Walk_Airspace_Group(0);
}

static std::string Describe(const std::vector<Airspace_Info>& table) {
    std::ostringstream out;
    for (const Airspace_Info& a : table) {
        out << a.name << '/' << a.low_limit << '-' << a.high_limit << '/' << a.freq_text << '/'
            << a.facility_text << '/' << a.class_label;
        for (const auto& [kind, lat, lon, radius] : a.boundary)
            out << ' ' << static_cast<int>(kind) << ':' << lat << ',' << lon << ',' << radius;
        out << '\n';
    }
    return out.str();
}

TEST(Airspace_Reader, RecordReachesAnotherAirspaceOrField) {
    const auto name = [](std::string_view text) { return Record(0x10006, Text(text)); };
    const auto at = [](std::int32_t type, std::int32_t low = 7, std::int32_t high = 7) {
        return Record(type, Longs({9, Lat_45, 9, 1000000, low, high}));
    };
    const auto frequency = [](std::int32_t code, std::string_view text) {
        return Record(0x20001, Join({Longs({code, 9}), Text(text)}));
    };
    const Bytes miss = Box(0, 0, 1, 1);
    const Bytes group = Join({
        Object({name("lost"), Round_Both, name({"A\0B", 3}), at(0x12001), at(0x12002, 1, 2),
                at(0x12003), at(0x12005), at(0x12006), at(0x12007), name("C"),
                Record(0x12008, Longs({20, 9, 3, -4})), frequency(0x01243000, "old"),
                frequency(0x01180000, "new")}),
        Object({miss, name("of no airport")}),
        Record(0x30001, Longs({5})),
        Record(1, Join({Longs({4, 0}), Round_Both})),
        Object({Round_Departure, name("first"), miss, Round_Both, name("last"), Record(0x12004, {}),
                name("behind the end")}),
        Longs({2}),
        Object({Round_Both}),
    });
    EXPECT_TRUE(Search(group));
    const std::string both =
        "AB  C/3--4/124.3 Mhz  118 Mhz  /new/ 1:45,0.0838,0 0:45,0.0838,0 5:45,0.0838,0 "
        "3:45,0.0838,0 4:45,0.0838,0 2:0,0,20\n";
    EXPECT_EQ(Describe(departure_airspaces), both + "first/0-0///\nlast/0-0///\n");
    EXPECT_EQ(Describe(destination_airspaces), both + "last/0-0///\n");
}

TEST(Airspace_Reader, EdgeOrCrossedMeridianEncloses) {
    const std::tuple<Bytes, bool, bool> cases[] = {
        {Round_Both, true, true},
        {Round_Departure, true, false},
        {Box(0, Lon_30, 1 << 24, 1 << 30), true, false},
        {Box(0, 1 << 30, 1 << 24, -0x70000000), false, false},
        // Within half of a ten-thousandth of a degree the airport stands on the edge.
        {Box(0, 0, Lat_45 + 5, 1 << 30), false, true},
        {Box(0, 0, Lat_45 + 6, Lon_45 + 600), true, true},
        {Box(0, 0, 1 << 24, Lon_45 + 590), false, true},
    };
    for (const auto& [box, departure, destination] : cases) {
        EXPECT_FALSE(Search(Object({box}))) << "no end";
        EXPECT_EQ(departure_airspaces.size(), departure) << testing::PrintToString(box);
        EXPECT_EQ(destination_airspaces.size(), destination) << testing::PrintToString(box);
    }
}

TEST(Airspace_Reader, CenterIsTurnedToTheTrueCourse) {
    magnetic_table.fill(1821);  // 10 degrees east: along 119 it would be 36.57439, 43.81968
    Search(Object({Box(2222611, 238609294, 5556528, 715827883)}));
    magnetic_table.fill(0);
    EXPECT_EQ(departure_airspaces.at(0).center_lat, 39.33276);
    EXPECT_EQ(destination_airspaces.at(0).center_lon, 46.95618);
}

TEST(Airspace_Reader, TruncationLosesWhatStandsAhead) {
    const Bytes start = Record(0x12002, Longs({0, 0, 0, 0, 0, 0}));
    const Bytes all = Object({Round_Both, start, start});
    for (std::size_t size = 0; size < all.size(); ++size) {
        EXPECT_FALSE(Search(Prefix(all, size)));
        ASSERT_EQ(departure_airspaces.size(), size >= 40 ? 1 : 0) << size;
        EXPECT_TRUE(size < 40 || departure_airspaces[0].boundary.size() == (size - 40) / 32);
    }
}

TEST(Airspace_Reader, OverlappingObjectsTakeQuadraticTime) {
    const std::vector<Bytes> group(4000, Longs({1, 24, 5, 0, 0x12003, 24, 0, 0}));
    EXPECT_TRUE(Search(Join({Join(group), Longs({2, 0, 0, 0, 2})})));
    Start_Allowance();
    EXPECT_FALSE(Walk_Airspace_Group(0));
    End_Allowance();
}
