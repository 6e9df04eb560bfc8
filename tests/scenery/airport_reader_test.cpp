#include "scenery/airport_reader.h"

#include <gtest/gtest.h>

#include "scenery/magnetic.h"
#include "tests/scenery/bgl_builder.h"

namespace skerrand {
namespace {

using namespace bgl;

constexpr std::int32_t Lat_45 = 5000875;
constexpr std::int32_t Lon_90 = 0x40000000;

/// Reads the records as the block of an airport that ends with a record of an unknown type.
Airport_Info Read(const Bytes& records, bool sound = true) {
    Load(Join({Longs({1, 0, 1, 0}), records, Longs({0x10007})}));
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
    EXPECT_EQ(airport.ground_freq, "121.9") << "the first stays";
    EXPECT_EQ(airport.atis_freq, "123") << "no text before it";
    EXPECT_EQ(airport.tower_freq + ' ' + airport.clearance_freq + ' ' + airport.approach_freq +
                  ' ' + airport.departure_freq + ' ' + airport.center_freq,
              "118.1 118.2 118.3 118.4 118.5");
    const Bytes faults[] = {Record(0x10006, Text("WXYZ"), 999), Record(0x10006, {}, INT32_MAX),
                            Record(0x10003, {}, -8), Record(0x10003, {}, -2000000000)};
    for (const Bytes& fault : faults)
        EXPECT_EQ(Read(Join({Icao("ABCD"), fault}), false).icao_id, "ABCD");
}

TEST(Airport_Reader, Runway_Identifiers_Wrong) {
    const std::tuple<std::int32_t, std::int32_t, const char*> cases[] = {
        {37, 0, "/"},      {36, 1, "36L/18R"}, {18, 0, "18/36"}, {9, 2, "9R/27L"},
        {19, 3, "19C/1C"}, {1, 4, "1H/19H"},   {5, 5, "1H/19H"}, {5, -1, "1H/19H"},
        {99, 1, "1H/19H"}, {-3, 1, "-3L/15R"},
    };
    Bytes records;
    for (const auto& [number, designator, ids] : cases)
        records = Join({records, Runway({.designator = designator, .number = number})});
    const Airport_Info airport = Read(records);
    ASSERT_EQ(airport.runways.size(), std::size(cases));
    for (std::size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(airport.runways[i].id_1 + '/' + airport.runways[i].id_2, std::get<2>(cases[i]));
}

TEST(Airport_Reader, Runway_Ends_Misplaced) {
    magnetic_table.fill(0);
    const std::pair<std::int32_t, double> cases[] = {
        {500, 152.4}, {984, 299.9232}, {985, 240.228}, {10000, 2988}};
    for (const auto& [length_ft, drawn_m] : cases) {
        const Runway_Info runway =
            Read(Runway({.lon = Lon_90, .heading = Lon_90, .length = length_ft})).runways.at(0);
        EXPECT_NEAR(runway.lon_2 - runway.lon_1, drawn_m * 360 / 40007000, 1e-12);
        EXPECT_NEAR(runway.lon_1 + runway.lon_2, 180, 1e-12);
        EXPECT_NEAR(runway.lat_1, 0, 1e-12);
        EXPECT_EQ(runway.length_ft, length_ft);
    }
    // At 45 degrees a degree of longitude is shorter.
    const double span = 854.4 * 360 / 40007000 * 1.41421356;
    const Airport_Info airport = Read(Join({Runway({Lat_45, 0x7FFFFFFF, 100, -Lon_90, 3000}),
                                            Runway({Lat_45, -0x7FFFFFFF, 100, Lon_90, 3000})}));
    EXPECT_NEAR(airport.runways.at(0).lon_1, -180 + span / 2, 1e-6);
    EXPECT_NEAR(airport.runways.at(0).lon_2, 180 - span / 2, 1e-6);
    EXPECT_NEAR(airport.runways.at(1).lon_1, 180 - span / 2, 1e-6);
    EXPECT_EQ(airport.runways.at(0).altitude_ft, 328);
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
    const Runway_Info& east = airport.runways.at(0);
    // The transmitter stays in place off the runway's line, and against a negative heading.
    const double lons[] = {east.lon_1, east.lon_2, 90, airport.runways.at(1).lon_1, 90};
    const std::int16_t courses[] = {90, 270, 91, 270, 90};
    for (std::size_t i = 0; i < std::size(lons); ++i) {
        EXPECT_EQ(airport.ils[i].lon, lons[i]) << i;
        EXPECT_EQ(airport.ils[i].mag_course, courses[i]) << i;
        EXPECT_EQ(airport.ils[i].name + airport.ils[i].freq, "ILS110.3");
    }
}

}  // namespace
}  // namespace skerrand
