#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <iomanip>
#include <set>
#include <sstream>

#include "scenery/bgl_walk.h"
#include "selection/picks.h"
#include "tests/scenery/bgl_builder.h"
#include "tools/moved_airports.h"
#include "tools/scenery_file.h"

namespace {

using namespace world;

std::vector<Airport_Facts> Airports_Of(const std::string& text) {
    std::vector<Airport_Facts> facts;
    EXPECT_EQ(Parse_Airports(text, facts), "");
    return facts;
}

std::string Told(const skerrand::Airport_Info& airport) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(6) << airport.icao_id << ' ' << airport.airport_name;
    const auto tell = [&text](const auto&... values) { ((text << ' ' << values), ...) << " /"; };
    tell(airport.lat, airport.lon, airport.tower_freq);
    for (const auto& one : airport.runways) {
        tell(one.id_1, one.id_2, one.lat_1, one.lon_1, one.lat_2, one.lon_2, one.altitude_ft,
             one.mag_heading_1, one.length_ft, one.width_ft);
    }
    for (const auto& ils : airport.ils)
        tell(ils.name, ils.lat, ils.lon, ils.mag_course, ils.freq);
    for (const auto& point : airport.taxi_points)
        tell(point.lat, point.lon);
    for (const auto& parking : airport.parkings)
        tell(parking.name, parking.lat, parking.lon, parking.radius_ft);
    for (const auto& path : airport.taxi_paths)
        tell(path.kind, path.start_point, path.end_point, path.name);
    return text.str();
}

TEST(Make_World, Airport_Read_Otherwise_Than_Told) {
    const char* const text =
        "airport KBBB 60 -180 0 First\nairport KAAA 0.000004 10 1000 A Name\ncom tower 118.1\n"
        "runway 18C 36C 0.01 10 -0.01 10 99\nrunway 09L 27R 0.00001 10 0.00001 10.01 150\n"
        "ils 27R IAAA 0 9 270 110.3\nils 36C IBB 0.5 9 1 109.95\n"
        "point 0.00005 10.001\npoint -0.00003 10.009\npoint 0.0001 10.005\n"
        "parking 0.0001 10.005 10 8191 GATE\nparking -1 10 40 0 NW PARKING\n"
        "parking 0 10 18 7 GATE Z\npath 0 1\npath 0 1 A\npath 0 2\npath 2 1 ABCDEFGH\n";
    skerrand::bgl::Load(skerrand::bgl::Text(Scenery_File(Airports_Of(text), {})));
    skerrand::Walk_Bgl();
    ASSERT_EQ(skerrand::airport_table.size(), 2U);
    EXPECT_EQ(Told(skerrand::airport_table[0]), "KBBB First 59.999997 -180.000000  /");
    // A degree of the equator is 111,120 m for taxi points and 111,131 m for runways, whose ends
    // are drawn 30 m or 0.00027 degrees in.
    EXPECT_EQ(Told(skerrand::airport_table[1]),
              "KAAA A Name 0.000000 10.000000 118.1 / "
              "18C 36C 0.009730 10.000000 -0.009730 10.000000 1001 180 7292 99 / "
              "9L 27R 0.000009 10.000270 0.000009 10.009730 1001 90 3646 150 / "
              "IBB 0.499998 9.000000 1 109.95 / IAAA 0.000009 10.009730 270 110.3 / "
              "0.000050 10.001000 / -0.000030 10.009000 / 0.000100 10.005000 / "
              "GATE 8191 0.000100 10.005000 33 / NW PARKING 0 -1.000000 10.000000 131 / "
              "GATE Z 7 0.000000 10.000000 59 / "
              "1 0 1 Runway 9L / 0 0 1 A / 2 0 0 0 / 0 2 1 ABCDEFGH /");
}

TEST(Make_World, Moved_Airport_Loses_Its_Shape) {
    std::stringstream text;
    text << std::ifstream(SKERRAND_DATA_DIR "/demo_airports.txt").rdbuf();
    const std::vector<Airport_Facts> models = Airports_Of(text.str());
    const std::vector<Airport_Facts> moved = Moved_Airports(models, 27000);
    std::set<std::string> idents;
    double points = 0;
    for (const Airport_Facts& airport : moved) {
        idents.insert(airport.ident);
        points += static_cast<double>(airport.points.size());
    }
    EXPECT_EQ(idents.size(), 27000U);
    EXPECT_NEAR(points, 360000, 20000);
    const auto far = [](const Airport_Facts& airport) {
        const auto east = [&](Position at) { return To_Local(airport.position, at).east; };
        return east(airport.runways.at(0).end_2) + east(airport.points.at(0)) +
               east(airport.parkings.at(0).position);
    };
    EXPECT_NEAR(far(moved[12 * 29]), far(models[12]), 3);
    for (const Airspace_Facts& one : Airspaces_Of(moved))
        EXPECT_TRUE(one.box.south_west.lon > -180 && one.box.north_east.lon < 180) << one.name;
}

TEST(Make_World, Malformed_Line_Taken_Or_Not_Named) {
    std::vector<Airport_Facts> airports;
    EXPECT_TRUE(Parse_Airports("point 1 2\n", airports).starts_with("line 1: an airport"));
    const std::string head = "# facts\n\nairport KAAA 47.5 -122.25 433 A\r\npoint 1 2\n";
    for (const char* line :
         {"lake 1 2\n", "com tower nan\n", "runway 09L 27L 1 2 1 3 100\n",
          "ils 09 IAAA 1 2 90 110.3\n", "parking 1 2 10 8192 GATE\n", "path 0 1 A\n"})
        EXPECT_TRUE(Parse_Airports(head + line, airports).starts_with("line 5: ")) << line;
    Coarse_Grid grid;
    EXPECT_NE(Parse_Magnetic_Grid("# 3\n1 2\n", grid), "");
    EXPECT_NE(Parse_Magnetic_Grid("1 2 x\n", grid), "");
}

TEST(Make_World, Variation_Goes_The_Long_Way_Round) {
    Coarse_Grid grid(Coarse_Rows * Coarse_Columns);
    grid[0] = 170, grid[1] = -170;
    grid[18 * Coarse_Columns] = -10, grid[19 * Coarse_Columns - 1] = 10;
    EXPECT_NEAR(Variation_At(grid, -90, 1), 174, 1e-9);
    EXPECT_NEAR(Variation_At(grid, 0, 357), 2, 1e-9) << "between 355 and 0 east";
    EXPECT_NEAR(Variation_At(grid, 3, 355), 4, 1e-9);
    EXPECT_EQ(Variation_At(grid, 90, 359), 0);
    // In the file a column of 181 latitudes a longitude, 65536 parts of the circle.
    const std::string file = Magdec_File(grid);
    EXPECT_EQ(file.substr(128 + 8 + 2 * 181, 2), "\xBC\x7B") << "174 degrees are 31676 parts";
}

}  // namespace
