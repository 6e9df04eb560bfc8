#include <cmath>
#include <gtest/gtest.h>

#include "app/settings.h"
#include "chart/current_chart.h"
#include "scenery/database.h"
#include "scenery/magnetic.h"
#include "selection/airspace_search.h"
#include "selection/geodesy.h"
#include "selection/picks.h"
#include "tests/platform/scratch_folder.h"
#include "tools/scenery_file.h"

using namespace skerrand;

static std::string progress;

/// Both airports stand amid these airspaces, in a file with another airport.
static void Search(const std::vector<world::Airspace_Facts>& airspaces) {
    const Scratch_Folder scratch;
    Scratch_Folder::Put("a.bgl",
                        world::Scenery_File(std::vector<world::Airport_Facts>(1), airspaces));
    airport_table.clear();  // of other tests
    first_run = false;
    database_ready = true;
    for (Airport_Info* airport : {&departure_airport, &destination_airport})
        airport->lat = airport->lon = 45;
    current_airspaces.resize(3);
    airspace_files = {"gone.bgl", scratch.Path() + "/a.bgl"};
    progress.clear();
    const Unread_Files unread = Search_Airspaces([](int done, int of) {
        progress += std::to_string(done) + '/' + std::to_string(of) + ' ';
    });
    EXPECT_EQ(unread.first + ' ' + progress, "gone.bgl 0/2 1/2 2/2 ");
    EXPECT_TRUE(airspace_files.empty() && current_airspaces.empty() && airport_table.empty());
}

TEST(Airspace_Search, LabelOrDiscWrong) {
    const std::tuple<std::int32_t, std::int32_t, const char*, const char*> cases[] = {
        {0, 2500, "", "Airspace Class D"},  {2500, 2501, "", "Airspace Class C"},
        {2501, 0, "", "Airspace Class C"},  {4000, 4001, "", "Airspace Class B"},
        {4001, -1, "", "Airspace Class B"}, {INT32_MIN, -1, "", "Airspace Class D"},
        {9000, 9000, "FIR", "ARTCC/FIR"}};
    std::vector<world::Airspace_Facts> airspaces;
    for (const auto& [low, high, facility, label] : cases)
        airspaces.push_back({"", low, high, 1243000, facility, {{0, 0}, {90, 90}}, {{}}});
    departure_airport.departure_freq = "124.3";
    departure_airport.approach_freq = "118";
    Search(airspaces);
    ASSERT_EQ(departure_airspaces.size(), std::size(cases) + 1);
    EXPECT_EQ(destination_airspaces.size(), std::size(cases)) << "no frequency, no disc";
    for (std::size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(departure_airspaces[i].class_label, std::get<3>(cases[i])) << i;
    const Airspace_Info& disc = departure_airspaces.back();
    EXPECT_EQ(disc.class_label, "TRACON (Departure/Approach)");
    EXPECT_EQ(disc.freq_text, "124.3 Mhz  118 Mhz  ");
    EXPECT_EQ(disc.low_limit + disc.high_limit, 10000);
    ASSERT_EQ(disc.boundary.size(), 2);
    EXPECT_EQ(disc.boundary[0].lat, 45);
    EXPECT_EQ(disc.boundary[1].radius, 20);
    destination_airport.approach_freq = "119.1";
    departure_airport.approach_freq.clear();
    Search({});
    EXPECT_EQ(departure_airspaces.at(0).freq_text, "124.3 Mhz  ");
    EXPECT_EQ(destination_airspaces.at(0).freq_text, "119.1 Mhz  ");
    departure_airport = destination_airport = {};
}

TEST(Geodesy, TheSameFunctionsOfAnglesOnEverySystem) {
    struct Case {
        double (*function)(double);
        double of, value;
    };
    const volatile Case cases[] = {
        {std::sin, 3.14159265358979, 3.2310891488651735e-15},  // where a short pi shows
        {std::sin, -6.28318530717958, 6.4621782977303469e-15},
        {std::sin, 1e5, 0.03574879797201651},
        {std::cos, 1.570796326794895, 1.6155445744325867e-15},
        {std::cos, -2.5, -0.8011436155469337},
        {std::atan, 0.594, 0.5359960552202917},
        {std::atan, 0.274, 0.26743628138366421},
        {std::atan, -0.388, -0.37011893909174437}};
    for (const volatile Case& it : cases)
        EXPECT_EQ(it.function(it.of), it.value) << it.of;
}

TEST(Geodesy, DistancesAndCoursesAtTheirLimits) {
    EXPECT_EQ(Arc_Cos(-1), 3.14159265358979);
    EXPECT_EQ(Arc_Cos(-1.0000000001) + Arc_Sin(1.5), 0);
    EXPECT_EQ(Distance_NM(0, 0, 90, 0), 5400);
    EXPECT_EQ(Distance_NM(10, 20, -10, -160), 10800);
    EXPECT_EQ(Distance_NM(0, 179, 0, -179), 120);
    EXPECT_EQ(Distance_Feet(0, 0, 0, 1.0 / 60), 6080);
    EXPECT_EQ(Distance_Feet(30.181, -11.141, 30.169, -11.13), 5586);  // 5585 of unrounded miles
    EXPECT_EQ(Distance_Feet(0, 0, 0, 1), 32767);
    magnetic_table.fill(0);
    EXPECT_EQ(Magnetic_Course(10, 10, 10, 10), 360);
    EXPECT_NEAR(Magnetic_Course(0, 0, 0, -1), 270, 1);
    EXPECT_NEAR(Magnetic_Course(0, 179.5, 0, -179.5), 90, 1);
    EXPECT_EQ(Wrap_Degrees(800), 440) << "at most one turn";
}

TEST(Geodesy, DestinationsOfZeroAndNegativeDistances) {
    const Fix_Point behind = Destination_NM(47.123456, -122.654321, 77, -5);
    EXPECT_EQ(behind.lat, 47.12346);
    EXPECT_EQ(behind.lon, -122.65432);
    EXPECT_NEAR(Destination_NM(0, 0, 90, 60).lon, 1, 1e-4);
    EXPECT_NEAR(Destination_Meters(0, 0, 0, -1852).lat, 1.0 / 60, 1e-6);
    EXPECT_NEAR(Destination_Feet(0, 179.9999, 90, 6080).lon, -179.98343, 1e-5);
}

TEST(Geodesy, VariationIsTakenFromTheNearestGridPoint) {
    magnetic_table.fill(0);
    magnetic_table[90] = 1821;               // 10 degrees
    magnetic_table[90 + 181 * 359] = -3641;  // -20
    magnetic_table[138 + 181 * 238] = 3095;  // 17
    EXPECT_EQ(True_To_Magnetic(5, 0.5, -0.4), 355);
    EXPECT_EQ(Magnetic_To_True(5, 0.4, -0.6), 345);
    EXPECT_EQ(Magnetic_To_True(350, 47.6, -122.3), 7);
    magnetic_table[90] = 1820;
    EXPECT_EQ(True_To_Magnetic(100, 0, 0), 91) << "just short of 10 degrees is cut, not rounded";
    for (const double damaged : {1e300, -1e300, 19000.0}) {
        EXPECT_EQ(True_To_Magnetic(100, damaged, 0), 100) << "no place in the table";
        EXPECT_EQ(True_To_Magnetic(100, 0, damaged), 100);
    }
}

TEST(Picks, AnotherOfEqualEntriesIsTakenOrTheTableStays) {
    airport_table.clear();  // of other tests
    for (const char* id : {"AAAA", "AAAA", "aaaa"}) {
        Airport_Info& airport = airport_table.emplace_back();
        airport.airport_name = "Field";
        airport.icao_id = id;
        airport.lat = static_cast<double>(airport_table.size());
    }
    for (int pick = 0; pick < 2; ++pick) {  // the second one finds nothing
        Take_Picks("Field (AAAA)", "Field (aaaa)");
        EXPECT_EQ(departure_airport.lat, 2);
        EXPECT_EQ(destination_airport.lat, 3);
        EXPECT_EQ(airport_table.capacity(), 0) << "the memory of a world";
    }
}
