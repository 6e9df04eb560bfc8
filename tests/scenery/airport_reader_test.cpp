#include "scenery/airport_reader.h"

#include <gtest/gtest.h>

#include "scenery/magnetic.h"
#include "scenery/taxi_reader.h"
#include "tests/scenery/bgl_builder.h"

using namespace skerrand;

using namespace bgl;

constexpr std::int32_t Lat_45 = 5000875;
constexpr std::int32_t Lon_90 = 0x40000000;

/// Reads the records as the block of an airport that ends with a record of an unknown type.
static Airport_Info Read(const Bytes& records, bool sound = true) {
    Load(Join({Longs({1, 0, 1, 0}), records, Longs({0x10007, 0})}));
    Airport_Info airport;
    EXPECT_EQ(Read_Airport(0, airport), sound);
    return airport;
}

TEST(Airport_Reader, Head_Records_Overwrite_Or_Stay) {
    const Airport_Info airport = Read(Join(
        {Position(1, 2), Icao("first"), Com(5, 0x01219000), Com(5, 0x01220000), Com(1, 0x0120A000),
         Com(1, 0x01230000), Com(2, 0x01240000), Com(6, 0x01181000), Com(7, 0x01182000),
         Com(8, 0x01183000), Com(9, 0x01184000), Com(10, 0x01185000), Record(0x10003, Text("abc")),
         Record(0x10005, {}), Icao("l\xEFpx"), Position(Lat_45, -Lon_90)}));
    EXPECT_EQ(airport.lat, 45);
    EXPECT_EQ(airport.lon, -90);
    EXPECT_EQ(airport.icao_id, "L\xCFPX");
    // The first ground frequency stays, and of ATIS the first that has a text.
    EXPECT_EQ(airport.ground_freq + ' ' + airport.atis_freq + ' ' + airport.tower_freq + ' ' +
                  airport.clearance_freq + ' ' + airport.approach_freq + ' ' +
                  airport.departure_freq + ' ' + airport.center_freq,
              "121.9 123 118.1 118.2 118.3 118.4 118.5");
    const Bytes faults[] = {Record(0x10006, Text("WXYZ"), 999), Record(0x10006, {}, INT32_MAX),
                            Record(0x10003, {}, -8), Record(0x10003, {}, -2000000000)};
    for (const Bytes& fault : faults)
        EXPECT_EQ(Read(Join({Icao("ABCD"), fault}), false).icao_id, "ABCD");
}

TEST(Airport_Reader, Runway_Identifiers_Wrong) {
    Bytes records;
    for (const auto& [number, designator] : std::initializer_list<std::pair<int, int>>{
             {37, 0}, {36, 1}, {18, 0}, {9, 2}, {19, 3}, {1, 4}, {5, 5}, {5, -1}, {99, 1}, {-3, 1}})
        records = Join({records, Runway({.designator = designator, .number = number})});
    std::string ids;
    for (const Runway_Info& runway : Read(records).runways)
        ids += runway.id_1 + '/' + runway.id_2 + ' ';
    EXPECT_EQ(ids, "/ 36L/18R 18/36 9R/27L 19C/1C 1H/19H 1H/19H 1H/19H 1H/19H -3L/15R ");
}

TEST(Airport_Reader, Runway_Ends_Misplaced) {
    const double meter = 360.0 / 40007000;
    const std::tuple<Runway_Fields, double, double> cases[] = {
        {{.lon = Lon_90, .length = 500}, 90 - 76.2 * meter, 90 + 76.2 * meter},
        {{.lon = Lon_90, .length = 984}, 90 - 149.9616 * meter, 90 + 149.9616 * meter},
        {{.lon = Lon_90, .length = 985}, 90 - 120.114 * meter, 90 + 120.114 * meter},
        // At 45 degrees a degree of longitude is shorter, and these cross the meridian of 180.
        {{.lat = Lat_45, .lon = 0x7FFFFFFF, .length = 3000}, 179.994563499, -179.994563667},
        {{.lat = Lat_45, .lon = -0x7FFFFFFF, .length = 3000}, 179.994563667, -179.994563499},
    };
    for (auto [fields, lon_1, lon_2] : cases) {
        fields.heading = Lon_90;
        const Runway_Info runway = Read(Runway(fields)).runways.at(0);
        EXPECT_NEAR(runway.lon_1, lon_1, 1e-9);
        EXPECT_NEAR(runway.lon_2, lon_2, 1e-9);
        EXPECT_NEAR(runway.lat_1, Latitude_Degrees(fields.lat), 1e-12);
    }
}

TEST(Airport_Reader, Heading_By_The_Variation_Of_Another_Place) {
    constexpr std::int32_t Lon_90_5 = 1079710322;
    magnetic_table.fill(0);
    magnetic_table[90 + 181 * 91] = 10 * 65536 / 360 + 1;
    const Bytes runway = Runway({.lon = Lon_90_5, .heading = Lon_90});
    const Airport_Info airport = Read(Join({runway, Aid(0, Lon_90_5 + 9, Lon_90, 0, 4, "")}));
    magnetic_table.fill(0);
    EXPECT_EQ(airport.runways.at(0).mag_heading_1, 90);
    EXPECT_EQ(airport.runways.at(0).mag_heading_2, 260);
    EXPECT_EQ(airport.ils.at(0).mag_course, 80) << "at the transmitter, not at the end it serves";
}

TEST(Airport_Reader, Beam_At_The_Wrong_End_Or_Of_No_Runway) {
    constexpr std::int32_t Degree = 0x7FFFFFFF / 180;
    const auto ils = [](std::int32_t course, std::string_view name = "ILS") {
        return Aid(Lat_45, Lon_90, course, 0x01103000, 4, name);
    };
    const Airport_Info airport = Read(Join(
        {ils(Lon_90, "ahead of any runway"), Runway({.heading = Lon_90}), ils(Lon_90 + Degree / 3),
         Aid(0, 0, Lon_90, 0, 3, "no ILS"), ils(-Lon_90 - Degree / 3), ils(Lon_90 + Degree),
         Com(1, 0), ils(Lon_90, "behind another record"), Runway({.heading = -Lon_90}),
         ils(-Lon_90), ils(Lon_90)}));
    ASSERT_EQ(airport.ils.size(), 5U);
    const Runway_Info &east = airport.runways.at(0), &west = airport.runways.at(1);
    // The transmitter stays in place off the runway's line, and against a negative heading.
    const std::pair<double, int> beams[] = {
        {east.lon_1, 90}, {east.lon_2, 270}, {90, 91}, {west.lon_1, 270}, {90, 90}};
    for (std::size_t i = 0; i < std::size(beams); ++i) {
        EXPECT_EQ(airport.ils[i].lon, beams[i].first) << i;
        EXPECT_EQ(airport.ils[i].mag_course, beams[i].second) << i;
        EXPECT_EQ(airport.ils[i].name + airport.ils[i].freq, "ILS110.3");
    }
}

static std::string Names_Of(const std::vector<Taxi_Path>& paths) {
    std::string names;
    for (const Taxi_Path& path : paths)
        names += path.name + '|';
    return names;
}

TEST(Taxi_Reader, Lists_Read_Or_Replaced_Wrongly) {
    const Bytes points = List(12, {Point(7, 0, 0), Point(1, 100, -0.0F)});
    const Bytes parkings = List(20, {Parking(-1852, 1852, 30.48F, 0x800605)});
    const Bytes paths = List(32, {Path(0, 0, 1, 1), Path(1, 1, 0, 0), Path(2, 3, 4, 1),
                                  Path(1, 0, 0, 1), Path(1, 0, 0, 2), Path(9, 0, 0, -1)});
    const Airport_Info airport =
        Read(Join({Position(5000875, 333), Runway({.designator = 1}),
                   Taxi({points, parkings, paths, Longs({0, 12}), Longs({-5, 20}),
                         List(8, {Name("X"), Name("A")}), List(12, {Point(1, 5, 5)})}),
                   Taxi({List(12, {Point(3, 0, -1852)}), Longs({1, 16, 0, 0, 0, 0})})}));
    // The second block's list has taken the place of the first; what is 0 stays to the bit.
    EXPECT_EQ(airport.taxi_points, (std::vector<Taxi_Point>{{3, 44.983333, airport.lon}}));
    EXPECT_EQ(airport.parkings,
              (std::vector<Parking_Info>{{"SE PARKING 12", 45.016667, -0.023542, 100}}));
    EXPECT_EQ(Names_Of(airport.taxi_paths), "A|Runway 9L|1|Runway |2|-1|");
    EXPECT_EQ(Names_Of(Read(Taxi({paths, Longs({0, 8})})).taxi_paths), "1|0|1|1|2|-1|")
        << "no runways";
    EXPECT_EQ(airport.taxi_paths[2].start_point * 10 + airport.taxi_paths[2].end_point, 34);
}

TEST(Taxi_Reader, Block_Ends_Too_Early_Or_Too_Late) {
    const Bytes paths = List(32, {Path(0, 0, 0, 0), Path(1, 0, 0, 0)});
    const Bytes names = List(8, {Name("A")});
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
        EXPECT_EQ(Names_Of(airport.taxi_paths) + airport.icao_id, expected) << what;
    }
}

TEST(Taxi_Reader, Parking_Label_Wrong) {
    std::string_view label;
    std::string names;
    for (const std::int32_t packed : {5 * 128 + 38, 12 * 128 + 5, 13 * 128, 37, 64, 128 + 64,
                                      0xFFFFF, 7 * 128 + 10, -1 << 20 | 129, 9, 11, 12})
        names += Parking_Name(packed, label) + '|';
    EXPECT_EQ(names,
              " 5|SE PARKING 12|SE PARKING 13|GATE Z 0|GATE Z 0|GATE Z 2|GATE Z 8192|GATE 7|"
              "PARKING 1|NW PARKING 0|DOCK 0|GATE A 0|");
}

TEST(Taxi_Reader, Chain_Of_Name_Numbers_Cut_Or_Looped) {
    const std::vector<std::string> names = {"2",  "1", "5",           "07", "3",  "B",
                                            "-1", "",  "99999999999", "0",  "10", " 2"};
    std::vector<Taxi_Path> paths;
    for (std::size_t i = 0; i <= names.size(); ++i)
        paths.push_back({Path_Taxiway, 0, 0, std::to_string(i)});
    for (const char* name : {"07", " 2", "-1", ""})
        paths.push_back({Path_Taxiway, 0, 0, name});
    paths.push_back({Path_Runway, 0, 0, "0"});
    Name_Taxiways(names, paths);
    EXPECT_EQ(Names_Of(paths), "B|1|B|07|3|B|-1||99999999999|0|10| 2|12|07| 2|-1||0|");
}
