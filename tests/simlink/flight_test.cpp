#include "tools/simulator/flight.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "tools/simulator/options.h"

using namespace simulator;

using skerrand::Airport_Info;

constexpr double Degree = std::numbers::pi / 180;
constexpr double Metres = 111120;  // to the degree

/// An airport whose longest runway has that heading and length; one beside it is damaged.
static Airport_Info Airport(double lat, double lon, double heading, double length) {
    const double north = std::cos(heading * Degree) * length / 2 / Metres;
    const double east = std::sin(heading * Degree) * length / 2 / Metres / std::cos(lat * Degree);
    Airport_Info airport;
    airport.runways = {{"", "", lat - north, lon - east, lat + north, lon + east},
                       {"", "", lat, lon, lat + north, lon + east},
                       {"", "", lat, lon, lat, NAN}};
    return airport;
}

/// By the haversines, unlike the code.
static double Distance(double lat_1, double lon_1, double lat_2, double lon_2) {
    const double a = std::sin((lat_2 - lat_1) * Degree / 2),
                 b = std::sin((lon_2 - lon_1) * Degree / 2);
    const double h = a * a + std::cos(lat_1 * Degree) * std::cos(lat_2 * Degree) * b * b;
    return 2 * std::asin(std::sqrt(h)) / Degree * Metres;
}

TEST(Flight, Jumps_Or_Points_Elsewhere_Or_Does_Not_Arrive) {
    const Airport_Info home = Airport(47.45, -122.31, 180, 3600);
    // The heading of the take-off, and about so many metres from runway to runway.
    const std::tuple<const char*, Airport_Info, Airport_Info, double, double> cases[] = {
        {"next door, behind", home, Airport(47.53, -122.3, 140, 3000), 0, 9000},
        {"straight ahead", home, Airport(33.9, -118.4, 250, 3600), 180, 1.54e6},
        {"across the date line", Airport(-17.7, 177.4, 20, 3200), Airport(-16, -178, 271, 1800), 20,
         525e3},
        {"over the pole", Airport(80, 0, 45, 2000), Airport(79, 179, 0, 2000), 45, 2.333e6},
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
                  1);
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
        {{"", "--version", "fade0007", "--fs98", "--fly"}, "unknown option --fly"},
    };
    Options options;
    for (const auto& [words, fault] : cases)
        EXPECT_EQ(Parse_Options(static_cast<int>(words.size()), words.data(), options = {}), fault);
    EXPECT_TRUE(options.version == 0xFADE0007 && options.fs98 && !options.refuse);
    const char* const words[] = {"", "--refuse"};
    EXPECT_EQ(Parse_Options(2, words, options = {}), "");
    EXPECT_TRUE(options.refuse && !options.fs98 && !options.wait && !options.help);
}
