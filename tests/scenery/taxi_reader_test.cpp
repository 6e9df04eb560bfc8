#include "scenery/taxi_reader.h"

#include <gtest/gtest.h>

#include "scenery/airport_reader.h"
#include "tests/scenery/bgl_builder.h"

namespace skerrand {
namespace {

using namespace bgl;

Airport_Info Read(const Bytes& records, bool sound = true) {
    Load(Join({Longs({1, 0, 1, 0}), records, Longs({0x10007, 0})}));
    Airport_Info airport;
    EXPECT_EQ(Read_Airport(0, airport), sound);
    return airport;
}

std::string Path_Names(const Airport_Info& airport) {
    std::string names;
    for (const Taxi_Path& path : airport.taxi_paths)
        names += path.name + '|';
    return names;
}

TEST(Taxi_Reader, Lists_Read_Or_Replaced_Wrongly) {
    const Bytes points = Points({Point(7, 0, 0), Point(1, 100, -0.0F)});
    const Bytes parkings = Parkings({Parking(-1852, 1852, 30.48F, 0x800605)});
    const Bytes paths = Paths({Path(0, 0, 1, 1), Path(1, 1, 0, 0), Path(2, 3, 4, 1),
                               Path(1, 0, 0, 1), Path(1, 0, 0, 2), Path(9, 0, 0, -1)});
    const Airport_Info airport =
        Read(Join({Position(5000875, 333), Runway({.designator = 1}),
                   Taxi({points, parkings, paths, Longs({0, 12}), Longs({-5, 20}),
                         Names({"X", "A"}), Points({Point(1, 5, 5)})}),
                   Taxi({Points({Point(3, 0, -1852)}), Longs({1, 16, 0, 0, 0, 0})})}));
    ASSERT_EQ(airport.taxi_points.size(), 1U) << "the second block's list";
    EXPECT_EQ(airport.taxi_points[0].kind, 3);
    EXPECT_EQ(airport.taxi_points[0].lon, airport.lon) << "the same to the bit";
    ASSERT_EQ(airport.parkings.size(), 1U);
    EXPECT_EQ(airport.taxi_points[0].lat, 44.983333);
    EXPECT_EQ(airport.parkings[0].lat, 45.016667);
    EXPECT_NEAR(airport.parkings[0].lon, airport.lon - 0.023570, 1e-6);
    EXPECT_EQ(airport.parkings[0].radius_ft, 100);
    EXPECT_EQ(airport.parkings[0].name, "SE PARKING 12");
    EXPECT_EQ(Path_Names(airport), "A|Runway 9L|1|Runway |2|-1|");
    EXPECT_EQ(Path_Names(Read(Taxi({paths, Longs({0, 8})}))), "1|0|1|1|2|-1|") << "no runways";
    EXPECT_EQ(airport.taxi_paths[2].start_point * 10 + airport.taxi_paths[2].end_point, 34);
}

TEST(Taxi_Reader, Block_Ends_Too_Early_Or_Too_Late) {
    const Bytes paths = Paths({Path(0, 0, 0, 0), Path(1, 0, 0, 0)});
    const Bytes names = Names({"A"});
    const std::tuple<const char*, Bytes, const char*> cases[] = {
        {"paths behind the names", Taxi({names, paths}), "END"},
        {"no names", Taxi({paths}), "0|0|END"},
        {"empty names still name runways", Taxi({paths, Longs({-1, 8})}), "0|Runway 9|END"},
        {"unknown empty list", Taxi({paths, Longs({0, 0}), names}), "0|0|END"},
        {"fault in a list", Taxi({paths, Longs({1000, 32})}), "0|0|"},
        {"fault of a huge count", Taxi({paths, Longs({0x7FFFFFFF, 32})}), "0|0|"},
        {"fault in the names", Taxi({paths, Longs({1000, 8})}), "0|0|"},
        {"lists behind the end", Record(0x11001, Join({paths, names}), 0), "A|Runway 9|"},
    };
    for (const auto& [what, block, expected] : cases) {
        const bool sound = !std::string_view(what).starts_with("fault");
        const Airport_Info airport = Read(Join({Runway({}), block, Icao("END")}), sound);
        EXPECT_EQ(Path_Names(airport) + airport.icao_id, expected) << what;
    }
}

TEST(Taxi_Reader, Parking_Label_Wrong) {
    const std::pair<std::int32_t, const char*> cases[] = {{5 * 128 + 38, " 5"},
                                                          {12 * 128 + 5, "SE PARKING 12"},
                                                          {13 * 128, "SE PARKING 13"},
                                                          {37, "GATE Z 0"},
                                                          {64, "GATE Z 0"},
                                                          {128 + 64, "GATE Z 2"},
                                                          {0xFFFFF, "GATE Z 8192"},
                                                          {7 * 128 + 10, "GATE 7"},
                                                          {-1 << 20 | 129, "PARKING 1"}};
    std::string_view label;
    for (const auto& [packed, name] : cases)
        EXPECT_EQ(Parking_Name(packed, label), name) << packed;
}

TEST(Taxi_Reader, Chain_Of_Name_Numbers_Cut_Or_Looped) {
    const std::vector<std::string> names{"2", "0", "4", "3", "B", "", "07", "1"};
    const std::pair<const char*, const char*> cases[] = {
        {"0", "B"},
        {"1", "0"},
        {"3", "3"},
        {"5", ""},
        {"6", "07"},
        {"7", "1"},
        {"8", "8"},
        {"-1", "-1"},
        {"07", "07"},
        {" 2", " 2"},
        {"18446744073709551617", "18446744073709551617"}};
    for (const auto& [number, name] : cases) {
        std::vector<Taxi_Path> paths{{Path_Taxiway, 0, 0, number}, {Path_Runway, 0, 0, number}};
        Name_Taxiways(names, paths);
        EXPECT_EQ(paths[0].name, name);
        EXPECT_EQ(paths[1].name, number);
    }
}

}  // namespace
}  // namespace skerrand
