#include <algorithm>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <numbers>

#include "scenery/bgl_walk.h"
#include "selection/picks.h"
#include "tests/scenery/bgl_builder.h"
#include "tools/airport_block.h"
#include "tools/airspace_block.h"
#include "tools/demo_airports.h"
#include "tools/invented_airports.h"
#include "tools/invented_airspaces.h"
#include "tools/local_metres.h"

// What make_world writes has to come back through the program's own readers.

namespace {

using namespace world;

/// To anything that has a latitude and a longitude.
template <typename Place>
double Metres(Position a, const Place& b) {
    const double east = Longitude_Between(a.lon, b.lon) * std::cos(a.lat * std::numbers::pi / 180);
    return std::hypot(east, b.lat - a.lat) * 60 * 1852;
}

std::vector<skerrand::Airport_Info> Read_Back(const std::vector<Airport_Facts>& facts) {
    skerrand::bgl::Load(Airports_File(facts));
    skerrand::Walk_Bgl();
    return {skerrand::airport_table.begin(), skerrand::airport_table.end()};
}

void Expect_Frequencies(const Airport_Facts& facts, const skerrand::Airport_Info& airport) {
    const std::pair<Com_Use, std::string> read[] = {
        {Com_Use::Atis, airport.atis_freq},           {Com_Use::Clearance, airport.clearance_freq},
        {Com_Use::Ground, airport.ground_freq},       {Com_Use::Tower, airport.tower_freq},
        {Com_Use::Departure, airport.departure_freq}, {Com_Use::Approach, airport.approach_freq}};
    for (const auto& [use, text] : read) {
        const auto com = std::ranges::find(facts.coms, use, &Com_Facts::use);
        const double expected = com == facts.coms.end() ? 0 : com->frequency;
        EXPECT_NEAR(text.empty() ? 0 : std::stod(text) * 1e4, expected, 0.1);
    }
}

void Expect_Runways(const Airport_Facts& facts, const skerrand::Airport_Info& airport) {
    ASSERT_EQ(airport.runways.size(), facts.runways.size());
    std::size_t beam = 0;
    for (std::size_t i = 0; i < facts.runways.size(); ++i) {
        const Runway_Facts& runway = facts.runways[i];
        const skerrand::Runway_Info& read = airport.runways[i];
        EXPECT_EQ(read.id_1.substr(0, read.id_1.find_first_of("LRC")),
                  std::to_string(runway.number));
        const double real = Metres(runway.end_1, runway.end_2);
        const double drawn_in = real > 300 ? 30 : 0;
        EXPECT_NEAR(read.length_ft * 0.3048, real, real / 500);
        EXPECT_NEAR(Metres(runway.end_1, Position{read.lat_1, read.lon_1}), drawn_in, 2);
        EXPECT_NEAR(Metres(runway.end_2, Position{read.lat_2, read.lon_2}), drawn_in, 2);
        EXPECT_EQ(read.width_ft, runway.width_ft);
        for (const Ils_Facts& ils : runway.ils) {
            ASSERT_LT(beam, airport.ils.size());
            EXPECT_EQ(airport.ils[beam].name, ils.ident);
            EXPECT_NEAR(std::stod(airport.ils[beam++].freq) * 1e4, ils.frequency, 0.1);
        }
    }
    EXPECT_EQ(beam, airport.ils.size());
}

void Expect_Network(const Airport_Facts& facts, const skerrand::Airport_Info& airport) {
    ASSERT_EQ(airport.taxi_points.size(), facts.points.size());
    for (std::size_t i = 0; i < facts.points.size(); ++i)
        EXPECT_LT(Metres(facts.points[i], airport.taxi_points[i]), 0.2);
    ASSERT_EQ(airport.parkings.size(), facts.parkings.size());
    for (std::size_t i = 0; i < facts.parkings.size(); ++i) {
        const skerrand::Parking_Info& read = airport.parkings[i];
        EXPECT_LT(Metres(facts.parkings[i].position, read), 0.2);
        EXPECT_TRUE(read.name.ends_with(' ' + std::to_string(facts.parkings[i].number)));
    }
    ASSERT_EQ(airport.taxi_paths.size(), facts.paths.size());
    for (std::size_t i = 0; i < facts.paths.size(); ++i) {
        const Path_Facts& path = facts.paths[i];
        const skerrand::Taxi_Path& read = airport.taxi_paths[i];
        ASSERT_EQ(read.kind, static_cast<std::int32_t>(path.kind));
        EXPECT_EQ(read.start_point, path.start);
        EXPECT_EQ(read.end_point, path.end);
        const auto runway = static_cast<std::size_t>(path.runway);
        if (path.kind == Path_Kind::Parking) continue;
        EXPECT_EQ(read.name, path.kind == Path_Kind::Taxiway
                                 ? path.taxiway
                                 : "Runway " + airport.runways.at(runway).id_1);
    }
}

void Expect_Same(const std::vector<Airport_Facts>& facts) {
    const std::vector<skerrand::Airport_Info> airports = Read_Back(facts);
    ASSERT_EQ(airports.size(), facts.size());
    for (std::size_t i = 0; i < facts.size(); ++i) {
        SCOPED_TRACE(facts[i].ident);
        EXPECT_EQ(airports[i].icao_id, facts[i].ident);
        EXPECT_EQ(airports[i].airport_name, facts[i].name);
        EXPECT_LT(Metres(facts[i].position, airports[i]), 1);
        Expect_Frequencies(facts[i], airports[i]);
        Expect_Runways(facts[i], airports[i]);
        Expect_Network(facts[i], airports[i]);
    }
}

TEST(Make_World, Airports_Read_Otherwise_Than_The_Facts) {
    std::ifstream stream(SKERRAND_DATA_DIR "/demo_airports.txt");
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    std::vector<Airport_Facts> facts;
    ASSERT_EQ(Parse_Airports(text, facts), "");
    ASSERT_EQ(facts.size(), 26U);
    Expect_Same(facts);
    Expect_Same(Invent_Airports(1500, 5));
}

TEST(Make_World, Airspaces_Not_Found_From_The_Airport_Inside) {
    std::vector<Airport_Facts> airports = Invent_Airports(1500, 5);
    for (Airport_Facts& airport : airports)
        airport.name = airport.ident;  // names repeat
    const std::vector<Airspace_Facts> airspaces = Invent_Airspaces(airports, Airspaces_For(1500));
    ASSERT_EQ(airspaces.size(), 278U);
    skerrand::bgl_bytes = New_Bgl_File();
    Put_Airspace_Section(skerrand::bgl_bytes, airspaces, 3);
    skerrand::database_ready = true;
    skerrand::first_run = false;
    std::size_t owned = 0;
    const auto& found = skerrand::departure_airspaces;
    for (const Airport_Facts& airport : airports) {
        const auto is_own = [&airport](const auto& airspace) {
            return airspace.name.starts_with(airport.name + ' ');
        };
        const auto facts = std::ranges::find_if(airspaces, is_own);
        if (facts == airspaces.end()) continue;
        skerrand::departure_airspaces.clear();
        skerrand::departure_airport.lat = airport.position.lat;
        skerrand::departure_airport.lon = airport.position.lon;
        skerrand::Walk_Bgl();
        const auto read = std::ranges::find_if(found, is_own);
        ASSERT_NE(read, found.end()) << airport.name;
        EXPECT_EQ(read->high_limit, facts->high_ft);
        ASSERT_EQ(read->boundary.size(), facts->outline.size());
        for (std::size_t i = 0; i < facts->outline.size(); ++i)
            EXPECT_LT(Metres(facts->outline[i].position, read->boundary[i]), 10);
        ++owned;
    }
    EXPECT_GT(owned, 50U);
    skerrand::database_ready = false;
}

TEST(Make_World, Labels_Of_Parkings_Shifted) {
    std::vector<Airport_Facts> facts;
    ASSERT_EQ(Parse_Airports("airport AAAA 10 20 0 a\n"
                             "parking 10 20 10 1 PARKING\nparking 10 20 10 8191 NW PARKING\n"
                             "parking 10 20 30 0 GATE\nparking 10 20 18 12 GATE A\n"
                             "parking 10 20 18 7 GATE Z\nparking 10 20 5 3 DOCK\n",
                             facts),
              "");
    std::string names;
    const auto airports = Read_Back(facts);
    for (const auto& parking : airports.at(0).parkings)
        names += parking.name + ", ";
    EXPECT_EQ(names, "PARKING 1, NW PARKING 8191, GATE 0, GATE A 12, GATE Z 7, DOCK 3, ");
}

}  // namespace
