#include <algorithm>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <numbers>

#include "app/settings.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_walk.h"
#include "scenery/tables.h"
#include "selection/picks.h"
#include "tools/airport_block.h"
#include "tools/airspace_block.h"
#include "tools/demo_airports.h"
#include "tools/invented_airports.h"
#include "tools/invented_airspaces.h"
#include "tools/local_metres.h"

// What make_world writes has to come back through the program's own readers.

namespace {

using namespace world;

double Metres(Position a, double lat, double lon) {
    const double east = Longitude_Between(a.lon, lon) * std::cos(a.lat * std::numbers::pi / 180);
    return std::hypot(east, lat - a.lat) * 60 * 1852;
}

std::vector<skerrand::Airport_Info> Read_Back(const std::vector<Airport_Facts>& facts) {
    skerrand::bgl_bytes = Airports_File(facts);
    skerrand::bgl_bytes.push_back(0);
    skerrand::database_ready = false;
    skerrand::airport_count = 0;
    skerrand::Release_Airport_Table();
    skerrand::Walk_Bgl();
    return {skerrand::airport_table.begin(),
            skerrand::airport_table.begin() + skerrand::airport_count};
}

std::string Megahertz(const Airport_Facts& facts, Com_Use use) {
    for (const Com_Facts& com : facts.coms) {
        if (com.use != use) continue;
        std::string text = std::to_string(com.frequency);
        text.insert(text.size() - 4, ".");
        text.erase(text.find_last_not_of('0') + 1);
        return text.back() == '.' ? text.substr(0, text.size() - 1) : text;
    }
    return "";
}

void Expect_Runways(const Airport_Facts& facts, const skerrand::Airport_Info& airport) {
    ASSERT_EQ(airport.runways.size(), facts.runways.size());
    std::size_t beam = 0;
    for (std::size_t i = 0; i < facts.runways.size(); ++i) {
        const Runway_Facts& runway = facts.runways[i];
        const skerrand::Runway_Info& read = airport.runways[i];
        EXPECT_EQ(read.id_1.substr(0, read.id_1.find_first_of("LRC")),
                  std::to_string(runway.number));
        const double real = Metres(runway.end_1, runway.end_2.lat, runway.end_2.lon);
        EXPECT_NEAR(read.length_ft * 0.3048, real, real / 500);
        EXPECT_NEAR(Metres(runway.end_1, read.lat_1, read.lon_1), real > 300 ? 30 : 0, 2);
        EXPECT_NEAR(Metres(runway.end_2, read.lat_2, read.lon_2), real > 300 ? 30 : 0, 2);
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
    for (std::size_t i = 0; i < facts.points.size(); ++i) {
        EXPECT_LT(Metres(facts.points[i], airport.taxi_points[i].lat, airport.taxi_points[i].lon),
                  0.2);
    }
    ASSERT_EQ(airport.parkings.size(), facts.parkings.size());
    for (std::size_t i = 0; i < facts.parkings.size(); ++i) {
        const skerrand::Parking_Info& read = airport.parkings[i];
        EXPECT_LT(Metres(facts.parkings[i].position, read.lat, read.lon), 0.2);
        EXPECT_TRUE(read.name.ends_with(' ' + std::to_string(facts.parkings[i].number)))
            << read.name;
    }
    ASSERT_EQ(airport.taxi_paths.size(), facts.paths.size());
    for (std::size_t i = 0; i < facts.paths.size(); ++i) {
        const Path_Facts& path = facts.paths[i];
        const skerrand::Taxi_Path& read = airport.taxi_paths[i];
        ASSERT_EQ(read.kind, static_cast<std::int32_t>(path.kind));
        EXPECT_EQ(read.start_point, path.start);
        EXPECT_EQ(read.end_point, path.end);
        if (path.kind == Path_Kind::Taxiway) {
            EXPECT_EQ(read.name, path.taxiway);
        }
        if (path.kind == Path_Kind::Runway) {
            const auto runway = static_cast<std::size_t>(path.runway);
            EXPECT_EQ(read.name, "Runway " + airport.runways.at(runway).id_1);
        }
    }
}

void Expect_Same(const std::vector<Airport_Facts>& facts) {
    const std::vector<skerrand::Airport_Info> airports = Read_Back(facts);
    ASSERT_EQ(airports.size(), facts.size());
    for (std::size_t i = 0; i < facts.size(); ++i) {
        SCOPED_TRACE(facts[i].ident);
        EXPECT_EQ(airports[i].icao_id, facts[i].ident);
        EXPECT_EQ(airports[i].airport_name, facts[i].name);
        EXPECT_LT(Metres(facts[i].position, airports[i].lat, airports[i].lon), 1);
        EXPECT_EQ(airports[i].atis_freq, Megahertz(facts[i], Com_Use::Atis));
        EXPECT_EQ(airports[i].clearance_freq, Megahertz(facts[i], Com_Use::Clearance));
        EXPECT_EQ(airports[i].ground_freq, Megahertz(facts[i], Com_Use::Ground));
        EXPECT_EQ(airports[i].tower_freq, Megahertz(facts[i], Com_Use::Tower));
        EXPECT_EQ(airports[i].departure_freq, Megahertz(facts[i], Com_Use::Departure));
        EXPECT_EQ(airports[i].approach_freq, Megahertz(facts[i], Com_Use::Approach));
        Expect_Runways(facts[i], airports[i]);
        Expect_Network(facts[i], airports[i]);
    }
}

TEST(Make_World, Real_Airports_Read_Otherwise_Than_The_Facts) {
    std::ifstream stream(SKERRAND_DATA_DIR "/demo_airports.txt");
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    std::vector<Airport_Facts> facts;
    ASSERT_EQ(Parse_Airports(text, facts), "");
    ASSERT_EQ(facts.size(), 26U);
    Expect_Same(facts);
}

TEST(Make_World, Invented_Airports_Damaged_By_Writing) {
    Expect_Same(Invent_Airports(1500, 5));
}

void Expect_Outline(const Airspace_Facts& facts, const skerrand::Airspace_Info& read) {
    static const std::map<Outline_Kind, skerrand::Boundary_Kind> Kinds = {
        {Outline_Kind::Start, skerrand::Boundary_Kind::Point_Start},
        {Outline_Kind::Center, skerrand::Boundary_Kind::Point_Center},
        {Outline_Kind::Circle, skerrand::Boundary_Kind::Point_Circle},
        {Outline_Kind::Arc_Cw, skerrand::Boundary_Kind::Point_Arc_Cw},
        {Outline_Kind::Arc_Ccw, skerrand::Boundary_Kind::Point_Arc_Ccw},
        {Outline_Kind::Line, skerrand::Boundary_Kind::Point_Line}};
    ASSERT_EQ(read.boundary.size(), facts.outline.size());
    for (std::size_t i = 0; i < facts.outline.size(); ++i) {
        EXPECT_EQ(read.boundary[i].kind, Kinds.at(facts.outline[i].kind));
        EXPECT_EQ(read.boundary[i].radius, facts.outline[i].half_diagonal);
        const Position position = facts.outline[i].position;
        EXPECT_LT(Metres(position, read.boundary[i].lat, read.boundary[i].lon), 10);
    }
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
    for (const Airport_Facts& airport : airports) {
        const auto is_own = [&airport](const auto& airspace) {
            return airspace.name.starts_with(airport.name + ' ');
        };
        const auto facts = std::find_if(airspaces.begin(), airspaces.end(), is_own);
        if (facts == airspaces.end()) continue;
        skerrand::departure_airspaces.clear();
        skerrand::departure_airport.lat = airport.position.lat;
        skerrand::departure_airport.lon = airport.position.lon;
        skerrand::Walk_Bgl();
        const auto& found = skerrand::departure_airspaces;
        const auto read = std::find_if(found.begin(), found.end(), is_own);
        ASSERT_NE(read, found.end()) << airport.name;
        EXPECT_EQ(read->high_limit, facts->high_ft);
        Expect_Outline(*facts, *read);
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
