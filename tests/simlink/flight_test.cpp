#include "tools/simulator/flight.h"

#include <cmath>
#include <gtest/gtest.h>

#include "selection/geodesy.h"
#include "tools/simulator/options.h"

using namespace simulator;

using skerrand::Airport_Info;

/// An airport whose longest runway has these ends; one beside it is damaged.
static Airport_Info Airport(double lat_1, double lon_1, double lat_2, double lon_2) {
    Airport_Info airport;
    airport.runways = {{"", "", lat_1, lon_1, lat_2, lon_2}, {"", "", lat_1, lon_1, lat_1, NAN}};
    return airport;
}

TEST(Flight, Jumps_Or_Points_Elsewhere_Or_Does_Not_Arrive) {
    const Airport_Info home = Airport(79.994, -0.036, 80.006, 0.036);
    const Airport_Info beyond_the_pole = Airport(78.99, 179, 79.01, 179);
    const std::vector<Leg> flight = Plan_Flight(home, &beyond_the_pole);
    Aircraft before = Aircraft_At(flight, -1);
    EXPECT_NEAR(before.heading, 46.1, 0.1);
    double fastest = 0;
    for (double time = 0; time < Duration(flight) + 2; ++time) {
        const Aircraft now = Aircraft_At(flight, time);
        fastest = std::max<double>(
            fastest, skerrand::Distance_Feet(before.lat, before.lon, now.lat, now.lon));
        before = now;
    }
    EXPECT_NEAR(fastest, 150 * 6080 / 1852., 3);
    EXPECT_NEAR(before.lat, 78.99, 1e-4);
    EXPECT_NEAR(before.lon, 179, 1e-4);
    EXPECT_NEAR(
        Aircraft_At(Plan_Flight(Airport(47.466, -122.31, 47.434, -122.31), nullptr), 3600).lat,
        42.65, 0.1)
        << "straight on";
}

TEST(Simulator_Options, Command_Line_Misread) {
    const std::pair<std::vector<const char*>, const char*> cases[] = {
        {{"", "--destination", "KSEA"}, "--destination goes with --departure"},
        {{"", "--departure"}, "--departure needs a value"},
        {{"", "--speed-up", "nan"}, "--speed-up does not take nan"},
        {{"", "--altimeter", "4096"}, "--altimeter does not take 4096"},
        {{"", "--die-after", "1x"}, "--die-after does not take 1x"},
        {{"", "--version", "fade0007", "--fs98", "--refuse", "--fly"}, "unknown option --fly"},
    };
    Options options;
    for (const auto& [words, fault] : cases)
        EXPECT_EQ(Parse_Options(static_cast<int>(words.size()), words.data(), options = {}), fault);
    EXPECT_TRUE(options.version == 0xFADE0007 && options.fs98 && options.refuse);
    EXPECT_FALSE(options.wait || options.help);
}
