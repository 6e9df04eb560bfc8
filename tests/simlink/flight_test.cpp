#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "tools/simulator/flight_plan.h"
#include "tools/simulator/options.h"
#include "tools/simulator/runway_line.h"

namespace simulator {
namespace {

using skerrand::Airport_Info;

/// An airport with a runway of that length and heading, and a taxi point and a parking on either
/// side of it.
Airport_Info Airport(Place middle, double heading, double length) {
    const auto way = [heading](const Vector& from, double turn) {
        const Pose north = Facing(from, {0, 0, 1});
        const double angle = -(heading + turn) * 3.14159265358979 / 180;
        return Pose{from, Rotate(north.ahead, from, angle)};
    };
    const auto place = [&](double along, double right) {
        const Pose on = Pose_At(Straight(way(Point_Of(middle), 0), 0), along);
        return Place_Of(Pose_At(Straight({on.at, -1 * Left_Of(on)}, 0), right).at);
    };
    const Place end_1 = place(-length / 2, 0), end_2 = place(length / 2, 0);
    const Place point = place(length * 0.4, 90), parking = place(-length * 0.4, -120);
    Airport_Info airport;
    airport.runways.push_back(
        {"", "", end_1.lat, end_1.lon, end_2.lat, end_2.lon, 0, 0, 0, 0, 100});
    airport.taxi_points.push_back({1, point.lat, point.lon});
    airport.parkings.push_back({"", parking.lat, parking.lon, 0});
    return airport;
}

double Turned(double from, double to) {
    return std::abs(std::remainder(to - from, 360));
}

bool On_Runway(const Airport_Info& airport, const Aircraft& aircraft) {
    const Runway_Line line = Longest_Runway(airport);
    const Offset offset = Offset_From(line, Point_Of({aircraft.lat, aircraft.lon}));
    return std::abs(offset.left) <= line.width / 2 && offset.along >= -1 &&
           offset.along <= line.length + 1;
}

/// The least seconds at which the speed falls through that of rolling, after the flight proper.
double Landed(const Flight& flight) {
    double time = Duration(flight);
    while (time > 0 && Aircraft_At(flight, time).speed < 13)
        time -= 0.5;
    return time;
}

struct Case {
    const char* what;
    Airport_Info departure, destination;
    double miles;  // between the airports
};

std::vector<Case> Cases() {
    const Airport_Info home = Airport({47.45, -122.31}, 180, 3600);
    const Airport_Info small = Airport({47.5, -122.4}, 37, 300);
    return {{"traffic pattern", home, home, 0},
            {"traffic pattern of a strip", small, small, 0},
            {"next door", home, small, 5},
            {"next door, behind", small, home, 5},
            {"beside each other", home, Airport({47.45, -122.3}, 2, 2500), 0.4},
            {"across the date line", Airport({-17.7, 177.4}, 20, 3200),
             Airport({-16, -178}, 271, 1800), 281},
            {"over the pole", Airport({80, 0}, 90, 2000), Airport({79, 179}, 0, 2000), 1260},
            {"far", home, Airport({-33.9, 151.2}, 335, 4000), 6700}};
}

TEST(Flight, Aircraft_Jumps_Or_Turns_On_The_Spot) {
    for (const Case& c : Cases()) {
        const Flight flight =
            c.miles == 0 ? Traffic_Pattern(c.departure) : Direct_Flight(c.departure, c.destination);
        constexpr double Step = 0.25;
        const double end = Duration(flight) + 5;
        double way = 0;
        Aircraft before = Aircraft_At(flight, -1);
        EXPECT_EQ(before.speed, 0) << c.what;
        for (double time = 0; time < end; time += Step) {
            const Aircraft now = Aircraft_At(flight, time);
            const double moved =
                Distance(Point_Of({before.lat, before.lon}), Point_Of({now.lat, now.lon}));
            // The mean speed of a step, with a change of acceleration anywhere in it.
            const double mean = (before.speed + now.speed) / 2;
            ASSERT_NEAR(moved, mean * Step, 0.2) << c.what << " at " << time;
            ASSERT_LE(std::abs(now.speed - before.speed), 2.01 * Step) << c.what << " at " << time;
            ASSERT_LE(Turned(before.heading, now.heading), (now.speed > 15 ? 12 : 16) * Step)
                << c.what << " at " << time;
            way += moved;
            before = now;
        }
        EXPECT_EQ(before.speed, 0) << c.what;
        // Little more than the great circle, but for the turns near the airports.
        EXPECT_GT(way, c.miles * 1852 * 0.98) << c.what;
        EXPECT_LT(way, c.miles * 1852 * 1.01 + 70000) << c.what;
    }
}

TEST(Flight, Turn_Of_Nothing_Becomes_A_Full_One) {
    for (int i = 0; i < 200; ++i) {
        const Pose from = Facing(Point_Of({0.9 * i - 89, 13.7 * i}), Point_Of({20, 7.1 * i}));
        const double distance = 30 * std::pow(1.06, i);
        double length = 0;
        for (const Arc& arc : Shortest_Way(from, Pose_At(Straight(from, 0), distance), 15 + i))
            length += arc.length;
        EXPECT_NEAR(length, distance, 1e-3) << i;
    }
}

TEST(Flight, Takes_Off_Or_Lands_Beside_The_Runway) {
    for (const Case& c : Cases()) {
        const Flight flight =
            c.miles == 0 ? Traffic_Pattern(c.departure) : Direct_Flight(c.departure, c.destination);
        double time = 0;
        for (; time < 5; ++time)
            EXPECT_TRUE(On_Runway(c.departure, Aircraft_At(flight, time))) << c.what << time;
        const double top = c.miles > 100 ? 150 : 15;
        while (Aircraft_At(flight, time).speed < top && time < Duration(flight))
            ++time;
        EXPECT_LT(time, Duration(flight)) << c.what << " never flies";
        EXPECT_TRUE(On_Runway(c.destination, Aircraft_At(flight, Landed(flight)))) << c.what;
        // It ends at the taxi point or the parking, beside the runway.
        const Aircraft last = Aircraft_At(flight, 1e9);
        const Vector stand = Point_Of({last.lat, last.lon});
        const auto& point = c.destination.taxi_points[0];
        const auto& parking = c.destination.parkings[0];
        EXPECT_LT(std::min(Distance(stand, Point_Of({point.lat, point.lon})),
                           Distance(stand, Point_Of({parking.lat, parking.lon}))),
                  0.1)
            << c.what;
    }
}

TEST(Flight, Damaged_Airport_Ends_Elsewhere_Than_On_Earth) {
    Airport_Info airport = Airport({10, 20}, 0, 1000);
    EXPECT_TRUE(Can_Land(airport));
    const Airport_Info whole = airport;
    airport.runways[0].lat_2 = airport.runways[0].lat_1;
    airport.runways[0].lon_2 = airport.runways[0].lon_1;
    EXPECT_FALSE(Can_Land(airport)) << "no length";
    airport.runways[0].lon_2 = NAN;
    EXPECT_FALSE(Can_Land(airport));
    // Places that are none, and one too far off, are no stands: it stops on the runway.
    airport = whole;
    airport.taxi_points[0].lat = NAN;
    airport.parkings[0].lat = 50;
    const Flight flight = Direct_Flight(whole, airport);
    EXPECT_TRUE(On_Runway(airport, Aircraft_At(flight, 1e9)));
}

TEST(Simulator_Options, Command_Line_Misread) {
    const struct {
        std::vector<const char*> arguments;
        const char* fault;
    } cases[] = {
        {{"--destination", "KSEA"}, "--destination goes with --departure"},
        {{"--departure"}, "--departure needs a value"},
        {{"--departure", ""}, "--departure does not take "},
        {{"--speed-up", "0"}, "--speed-up does not take 0"},
        {{"--speed-up", "nan"}, "--speed-up does not take nan"},
        {{"--altimeter", "4096"}, "--altimeter does not take 4096"},
        {{"--version", "1FADE0006"}, "--version does not take 1FADE0006"},
        {{"--version", "0xFADE0007"}, "--version does not take 0xFADE0007"},
        {{"--follow", "0"}, "--follow does not take 0"},
        {{"--die-after", "1x"}, "--die-after does not take 1x"},
        {{"--fly"}, "unknown option --fly"},
        {{"--version", "fade0007", "--die-after", "0", "--altimeter", "29.5", "--fs98"}, ""},
    };
    Options options;
    for (auto c : cases) {
        c.arguments.insert(c.arguments.begin(), "skerrand-simulator");
        options = {};
        const int count = static_cast<int>(c.arguments.size());
        EXPECT_EQ(Parse_Options(count, c.arguments.data(), options), c.fault);
    }
    EXPECT_EQ(options.version, 0xFADE0007);
    EXPECT_EQ(options.answers, 0);
    EXPECT_EQ(options.altimeter, 29.5);
    EXPECT_STREQ(options.window_class, "FS98MAIN");
}

}  // namespace
}  // namespace simulator
