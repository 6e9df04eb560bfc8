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
    const double north = std::cos(heading / 57.29578), east = std::sin(heading / 57.29578);
    const auto place = [&](double along, double right) {
        constexpr double metres = 111195;  // to the degree
        return Place{
            middle.lat + (along * north - right * east) / metres,
            middle.lon + (along * east + right * north) / metres / std::cos(middle.lat / 57.29578)};
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

/// Where anything is that has a latitude and a longitude.
template <typename Located>
Vector Point(const Located& located) {
    return Point_Of({located.lat, located.lon});
}

bool On_Runway(const Airport_Info& airport, const Aircraft& aircraft) {
    const Runway_Line line = Longest_Runway(airport);
    const Offset offset = Offset_From(line, Point(aircraft));
    return std::abs(offset.left) <= line.width / 2 && offset.along >= -1 &&
           offset.along <= line.length + 1;
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
            {"next door, behind", small, home, 5},
            {"beside each other", home, Airport({47.45, -122.3}, 2, 2500), 0.4},
            {"across the date line", Airport({-17.7, 177.4}, 20, 3200),
             Airport({-16, -178}, 271, 1800), 281},
            {"over the pole", Airport({80, 0}, 90, 2000), Airport({79, 179}, 0, 2000), 1260},
            {"far", home, Airport({-33.9, 151.2}, 335, 4000), 6700}};
}

TEST(Flight, Jumps_Or_Turns_On_The_Spot_Or_Rolls_Beside_The_Runway) {
    for (const Case& c : Cases()) {
        SCOPED_TRACE(c.what);
        const Flight flight =
            c.miles == 0 ? Traffic_Pattern(c.departure) : Direct_Flight(c.departure, c.destination);
        constexpr double Step = 0.25;
        double way = 0, airborne = 0;
        Aircraft before = Aircraft_At(flight, -1);
        EXPECT_EQ(before.speed, 0);
        for (double time = 0; time < Duration(flight) + 5; time += Step) {
            const Aircraft now = Aircraft_At(flight, time);
            const double moved = Distance(Point(before), Point(now));
            // The mean speed of a step, with a change of acceleration anywhere in it.
            ASSERT_NEAR(moved, (before.speed + now.speed) / 2 * Step, 0.2) << time;
            ASSERT_LE(std::abs(now.speed - before.speed), 2.01 * Step) << time;
            const double turned = std::remainder(now.heading - before.heading, 360);
            ASSERT_LE(std::abs(turned), (now.speed > 15 ? 12 : 16) * Step) << time;
            // From 13 m/s on it rolls on one runway or the other, or flies.
            const bool took_off = way > 0 && before.speed < 13 && now.speed >= 13;
            const bool landed = before.speed >= 13 && now.speed < 13;
            EXPECT_TRUE((time >= 5 && !took_off) || On_Runway(c.departure, now)) << time;
            EXPECT_TRUE(!landed || On_Runway(c.destination, now)) << time;
            airborne += now.speed > (c.miles > 100 ? 150 : 15) ? Step : 0;
            way += moved;
            before = now;
        }
        EXPECT_GT(airborne, 0);
        EXPECT_EQ(before.speed, 0);
        // Little more than the great circle, but for the turns near the airports.
        EXPECT_GT(way, c.miles * 1852 * 0.98);
        EXPECT_LT(way, c.miles * 1852 * 1.01 + 70000);
        // It ends at the taxi point or the parking, beside the runway.
        const auto from_stand = [&before](const auto& stand) {
            return Distance(Point(before), Point(stand));
        };
        EXPECT_LT(std::min(from_stand(c.destination.taxi_points[0]),
                           from_stand(c.destination.parkings[0])),
                  0.1);
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

TEST(Flight, Damaged_Airport_Ends_Elsewhere_Than_On_Earth) {
    Airport_Info airport = Airport({10, 20}, 0, 1000);
    EXPECT_TRUE(Can_Land(airport));
    // Places that are none, and one too far off, are no stands: it stops on the runway.
    airport.taxi_points[0].lat = NAN;
    airport.parkings[0].lat = 50;
    EXPECT_TRUE(On_Runway(airport, Aircraft_At(Direct_Flight(airport, airport), 1e9)));
    airport.runways[0].lon_2 = NAN;
    EXPECT_FALSE(Can_Land(airport));
    airport.runways[0].lon_2 = airport.runways[0].lon_1;
    airport.runways[0].lat_2 = airport.runways[0].lat_1;
    EXPECT_FALSE(Can_Land(airport)) << "no length";
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
        EXPECT_EQ(Parse_Options(static_cast<int>(c.arguments.size()), c.arguments.data(), options),
                  c.fault);
    }
    EXPECT_EQ(options.version, 0xFADE0007);
    EXPECT_EQ(options.answers, 0);
    EXPECT_EQ(options.altimeter, 29.5);
    EXPECT_STREQ(options.window_class, "FS98MAIN");
}

}  // namespace
}  // namespace simulator
