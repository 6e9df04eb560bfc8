#include "tools/simulator/flight.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "selection/geodesy.h"
#include "tools/simulator/options.h"

using namespace simulator;

using skerrand::Airport_Info;

constexpr double Degree = std::numbers::pi / 180;
constexpr double Metres = 111120;  // to the degree

/// An airport whose longest runway has these ends; one beside it is damaged.
static Airport_Info Airport(double lat_1, double lon_1, double lat_2, double lon_2) {
    Airport_Info airport;
    airport.runways = {{"", "", lat_1, lon_1, lat_2, lon_2},
                       {"", "", lat_1, lon_1, (lat_1 + lat_2) / 2, (lon_1 + lon_2) / 2},
                       {"", "", lat_1, lon_1, lat_1, NAN}};
    return airport;
}

/// In metres, by whole feet.
static double Distance(double lat_1, double lon_1, double lat_2, double lon_2) {
    return skerrand::Distance_Feet(lat_1, lon_1, lat_2, lon_2) * (1852.0 / 6080);
}

TEST(Flight, Jumps_Or_Points_Elsewhere_Or_Does_Not_Arrive) {
    const Airport_Info home = Airport(47.466, -122.31, 47.434, -122.31);
    // The heading of the take-off, and about so many metres from runway to runway.
    const std::tuple<const char*, Airport_Info, Airport_Info, double, double> cases[] = {
        {"next door, behind", home, Airport(47.54, -122.31, 47.52, -122.29), 0, 9000},
        {"straight ahead", home, Airport(33.905, -118.38, 33.895, -118.42), 180, 1.54e6},
        {"across the date line", Airport(-17.714, 177.395, -17.686, 177.405),
         Airport(-16, -177.99, -16, -178.01), 18.8, 525e3},
        {"over the pole", Airport(79.994, -0.036, 80.006, 0.036), Airport(78.99, 179, 79.01, 179),
         46.1, 2.333e6},
    };
    for (const auto& [what, departure, destination, heading, metres] : cases) {
        SCOPED_TRACE(what);
        const std::vector<Leg> flight = Plan_Flight(departure, &destination);
        constexpr double Step = 0.5;
        double way = 0, fastest = 0;
        Aircraft before = Aircraft_At(flight, -1), soon = Aircraft_At(flight, 10);
        EXPECT_NEAR(std::remainder(before.heading - heading, 360), 0, 0.1);
        EXPECT_NEAR(Distance(before.lat, before.lon, soon.lat, soon.lon), 100, 1) << "a fast start";
        for (double time = Step; time < Duration(flight) + 2; time += Step) {
            const Aircraft now = Aircraft_At(flight, time);
            const double moved = Distance(before.lat, before.lon, now.lat, now.lon);
            const double north = (now.lat - before.lat) * Metres;
            if (std::abs(std::remainder(now.heading - before.heading, 360)) < 1) {
                ASSERT_NEAR(north, moved * std::cos(now.heading * Degree), 3) << time;
            }
            fastest = std::max(fastest, moved / Step);
            way += moved;
            before = now;
        }
        EXPECT_NEAR(fastest, 150, 1);
        EXPECT_NEAR(way, metres, 8000);
        const auto& runway = destination.runways[0];
        EXPECT_LT(std::min(Distance(before.lat, before.lon, runway.lat_1, runway.lon_1),
                           Distance(before.lat, before.lon, runway.lat_2, runway.lon_2)),
                  0.5);
    }
    EXPECT_NEAR(Aircraft_At(Plan_Flight(home, nullptr), 3600).lat, 42.65, 0.1) << "straight on";
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
