#include "scenery/taxi_reader.h"

#include <gtest/gtest.h>
#include <random>

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
    const Bytes parkings = Parkings({Parking(0, 1852, 30.48F, 0x800605)});
    const Bytes paths = Paths({Path(0, 0, 1, 1), Path(1, 1, 0, 0), Path(2, 3, 4, 1),
                               Path(1, 0, 0, 1), Path(1, 0, 0, 2), Path(9, 0, 0, -1)});
    const Airport_Info airport =
        Read(Join({Position(5000875, 333), Runway({.designator = 1}),
                   Taxi({points, parkings, paths, Longs({0, 12}), Longs({-5, 20}),
                         Names({"X", "A"}), Points({Point(1, 5, 5)})}),
                   Taxi({Points({Point(3, 0, 0)}), Longs({1, 16, 0, 0, 0, 0})})}));
    ASSERT_EQ(airport.taxi_points.size(), 1U) << "the second block's list";
    EXPECT_EQ(airport.taxi_points[0].kind, 3);
    EXPECT_EQ(airport.taxi_points[0].lon, airport.lon) << "the same to the bit";
    ASSERT_EQ(airport.parkings.size(), 1U);
    EXPECT_EQ(airport.parkings[0].lat, 45.016667);
    EXPECT_EQ(airport.parkings[0].radius_ft, 100);
    EXPECT_EQ(airport.parkings[0].name, "SE PARKING 12");
    EXPECT_EQ(Path_Names(airport), "A|Runway 9L|1|Runway |2|-1|");
    EXPECT_EQ(Path_Names(Read(Taxi({paths, Longs({0, 8})}))), "1|0|1|1|2|-1|") << "no runways";
    EXPECT_EQ(airport.taxi_paths[2].start_point * 10 + airport.taxi_paths[2].end_point, 34);
}

TEST(Taxi_Reader, Block_Ends_Too_Early_Or_Too_Late) {
    const Bytes paths = Paths({Path(0, 0, 0, 0), Path(1, 0, 0, 0)});
    const Bytes names = Names({"A"});
    const struct {
        const char* what;
        Bytes block;
        const char* names;
        const char* icao_id;
    } cases[] = {
        {"paths behind the names", Taxi({names, paths}), "", "END"},
        {"no names", Taxi({paths}), "0|0|", "END"},
        {"empty names still name runways", Taxi({paths, Longs({-1, 8})}), "0|Runway 9|", "END"},
        {"unknown empty list", Taxi({paths, Longs({0, 0}), names}), "0|0|", "END"},
        {"fault in a list", Taxi({paths, Longs({1000, 32})}), "0|0|", ""},
        {"fault of a huge count", Taxi({paths, Longs({0x7FFFFFFF, 32})}), "0|0|", ""},
        {"fault in the names", Taxi({paths, Longs({1000, 8})}), "0|0|", ""},
        {"lists behind the end", Record(0x11001, Join({paths, names}), 0), "A|Runway 9|", ""},
    };
    for (const auto& c : cases) {
        const bool sound = std::string_view(c.what).substr(0, 5) != "fault";
        SCOPED_TRACE(c.what);
        const Airport_Info airport = Read(Join({Runway({}), c.block, Icao("END")}), sound);
        EXPECT_EQ(Path_Names(airport), c.names);
        EXPECT_EQ(airport.icao_id, c.icao_id);
    }
}

TEST(Taxi_Reader, Parking_Label_Wrong) {
    const struct {
        std::int32_t field;  // number and label code
        const char* name;
    } cases[] = {{5 * 128 + 38, " 5"},
                 {12 * 128 + 5, "SE PARKING 12"},
                 {13 * 128, "SE PARKING 13"},
                 {37, "GATE Z 0"},
                 {64, "GATE Z 0"},
                 {128 + 64, "GATE Z 2"},
                 {0xFFFFF, "GATE Z 8192"},
                 {7 * 128 + 10, "GATE 7"},
                 {-1 << 20 | 129, "PARKING 1"}};
    std::string_view label;
    for (const auto& c : cases)
        EXPECT_EQ(Parking_Name(c.field, label), c.name) << c.field;
}

/// The renaming in its plain form.
void Name_Taxiways_Plainly(const std::vector<std::string>& names, std::vector<Taxi_Path>& paths) {
    for (std::size_t i = 0; i < names.size(); ++i)
        for (Taxi_Path& path : paths)
            if (path.kind == Path_Taxiway && path.name == std::to_string(i)) path.name = names[i];
}

TEST(Taxi_Names, Chain_Of_Numbers_Cut_Or_Looped) {
    std::vector<std::string> words{"", "A", "07", "-1", " 2", "4294967296", "18446744073709551617"};
    for (int number = 0; number < 14; ++number)
        words.push_back(std::to_string(number));
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round) {
        std::vector<Taxi_Path> paths(random() % 12);
        for (Taxi_Path& path : paths)
            path = {static_cast<std::int32_t>(random() % 5 == 0), 0, 0,
                    words[random() % words.size()]};
        std::vector<Taxi_Path> expected = paths;
        for (int list = 0; list < 2; ++list) {
            std::vector<std::string> names(random() % 14);
            for (std::string& name : names)
                name = words[random() % words.size()];
            Name_Taxiways(names, paths);
            Name_Taxiways_Plainly(names, expected);
            ASSERT_EQ(paths, expected) << round;
        }
    }
}

}  // namespace
}  // namespace skerrand
