#include <fstream>
#include <gtest/gtest.h>
#include <iomanip>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "scenery/bgl_walk.h"
#include "selection/picks.h"
#include "tests/scenery/bgl_builder.h"
#include "tools/moved_airports.h"
#include "tools/scenery_file.h"

// What make_world writes has to come back through the program's own readers.

namespace {

using namespace world;

std::vector<Airport_Facts> Airports_Of(const std::string& text) {
    std::vector<Airport_Facts> facts;
    EXPECT_EQ(Parse_Airports(text, facts), "");
    return facts;
}

std::vector<Airport_Facts> Demo_Airports() {
    std::ifstream stream(SKERRAND_DATA_DIR "/demo_airports.txt");
    return Airports_Of(std::string(std::istreambuf_iterator<char>(stream), {}));
}

std::string Told(const skerrand::Airport_Info& airport) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(5) << airport.icao_id << ' ' << airport.airport_name;
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
        "airport KBBB 60 -180 0 First\nairport KAAA 0 10 1000 A Name\ncom tower 118.1\n"
        "runway 18C 36C 0.01 10 -0.01 10 99\nrunway 09L 27R 0.00001 10 0.00001 10.01 150\n"
        "ils 27R IAAA 0 9 270 110.3\nils 36C IBB 0.5 9 1 109.95\n"
        "point 0.00005 10.001\npoint -0.00003 10.009\npoint 0.0001 10.005\n"
        "parking 0.0001 10.005 10 8191 GATE\nparking -1 10 40 0 NW PARKING\n"
        "parking 0 10 18 7 GATE Z\npath 0 1\npath 0 1 A\npath 0 2\npath 2 1 ABCDEFGH\n";
    skerrand::bgl::Load(skerrand::bgl::Text(Scenery_File(Airports_Of(text), {})));
    skerrand::Walk_Bgl();
    ASSERT_EQ(skerrand::airport_table.size(), 2U);
    EXPECT_EQ(Told(skerrand::airport_table[0]), "KBBB First 60.00000 -180.00000  /");
    // A degree of the equator is 111,120 m for taxi points and 111,131 m for runways, whose ends
    // are drawn 30 m or 0.00027 degrees in.
    EXPECT_EQ(Told(skerrand::airport_table[1]),
              "KAAA A Name 0.00000 10.00000 118.1 / "
              "18C 36C 0.00973 10.00000 -0.00973 10.00000 1001 180 7292 99 / "
              "9L 27R 0.00001 10.00027 0.00001 10.00973 1001 90 3646 150 / "
              "IBB 0.50000 9.00000 1 109.95 / IAAA 0.00001 10.00973 270 110.3 / "
              "0.00005 10.00100 / -0.00003 10.00900 / 0.00010 10.00500 / "
              "GATE 8191 0.00010 10.00500 33 / NW PARKING 0 -1.00000 10.00000 131 / "
              "GATE Z 7 0.00000 10.00000 59 / "
              "1 0 1 Runway 9L / 0 0 1 A / 2 0 0 0 / 0 2 1 ABCDEFGH /");
}

TEST(Make_World, Airspace_Not_Found_From_The_Airport_Inside) {
    const std::vector<Airport_Facts> airports = Demo_Airports();
    skerrand::bgl::Load(skerrand::bgl::Text(Scenery_File({}, Airspaces_Of(airports))));
    skerrand::database_ready = true;
    skerrand::first_run = false;
    std::map<std::ptrdiff_t, int> airports_by_airspaces;
    for (const Airport_Facts& airport : airports) {
        skerrand::departure_airspaces.clear();
        skerrand::departure_airport.lat = airport.position.lat;
        skerrand::departure_airport.lon = airport.position.lon;
        skerrand::Walk_Bgl();
        ++airports_by_airspaces[std::ranges::count_if(
            skerrand::departure_airspaces,
            [&airport](const auto& one) { return one.name.starts_with(airport.name + ' '); })];
    }
    skerrand::database_ready = false;
    const std::map<std::ptrdiff_t, int> expected = {{0, 1}, {1, 3}, {3, 12}, {8, 10}};
    EXPECT_EQ(airports_by_airspaces, expected);
}

TEST(Make_World, Moved_Airport_Loses_Its_Shape) {
    const std::vector<Airport_Facts> models = Demo_Airports();
    const std::vector<Airport_Facts> moved = Moved_Airports(models, 27000);
    std::set<std::string> idents;
    double points = 0;
    for (const Airport_Facts& airport : moved) {
        idents.insert(airport.ident);
        points += static_cast<double>(airport.points.size());
    }
    EXPECT_EQ(idents.size(), 27000U);
    EXPECT_NEAR(points, 360000, 20000);
    for (const std::size_t model : {0U, 12U}) {
        const auto places = [](const Airport_Facts& airport) {
            const auto end = To_Local(airport.position, airport.runways.at(0).end_2);
            const auto point = To_Local(airport.position, airport.points.at(0));
            return std::array{end.east, end.north, point.east, point.north};
        };
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_NEAR(places(moved[model * 29])[i], places(models[model])[i], 2) << model;
    }
}

}  // namespace
