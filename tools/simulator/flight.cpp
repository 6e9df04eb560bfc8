#include "tools/simulator/flight.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace simulator {

namespace {

constexpr double Degree = std::numbers::pi / 180;  // radians
constexpr double Earth_Radius = 6366707;           // metres; a minute of arc is 1852 m
constexpr double Shortest_Runway = 100;            // metres
constexpr double Acceleration = 2;                 // m/s², and as much when it slows down
constexpr double Cruise = 150;                     // m/s, some 290 knots

double Dot(const Vector& a, const Vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector Sum(double factor_a, const Vector& a, double factor_b, const Vector& b) {
    return {factor_a * a[0] + factor_b * b[0], factor_a * a[1] + factor_b * b[1],
            factor_a * a[2] + factor_b * b[2]};
}

Vector Point_Of(double lat, double lon) {
    return {std::cos(lat * Degree) * std::cos(lon * Degree),
            std::cos(lat * Degree) * std::sin(lon * Degree), std::sin(lat * Degree)};
}

Leg Leg_Between(const Vector& from, const Vector& to) {
    const double cosine = Dot(from, to);
    const Vector aside = Sum(1, to, -cosine, from);
    const double sine = std::sqrt(Dot(aside, aside));
    if (sine == 0) return {from, from, 0};
    return {from, Sum(1 / sine, aside, 0, aside), std::atan2(sine, cosine)};
}

/// A place on a leg and the direction there.
Leg On_Leg(const Leg& leg, double angle) {
    const double c = std::cos(angle), s = std::sin(angle);
    return {Sum(c, leg.at, s, leg.ahead), Sum(-s, leg.at, c, leg.ahead), leg.angle - angle};
}

/// The direction of use that lies nearer to `way`.
Leg Best_Direction(const Leg& runway, const Vector& way) {
    if (Dot(runway.ahead, way) >= 0) return runway;
    return Leg_Between(On_Leg(runway, runway.angle).at, runway.at);
}

double Length_Of(const std::vector<Leg>& flight) {
    double length = 0;
    for (const Leg& leg : flight)
        length += leg.angle * Earth_Radius;
    return length;
}

/// A short way ends before the aircraft is as fast as it could be.
double Top_Speed(double length) {
    return std::min(Cruise, std::sqrt(Acceleration * length));
}

double Metres_At(const std::vector<Leg>& flight, double seconds) {
    const double length = Length_Of(flight);
    const double top = Top_Speed(length);
    const double gaining = top / Acceleration;  // seconds
    const double passed = std::clamp(seconds, 0.0, Duration(flight));
    const double left = Duration(flight) - passed;
    if (passed < gaining) return Acceleration * passed * passed / 2;
    if (left < gaining) return length - Acceleration * left * left / 2;
    return top * (passed - gaining / 2);
}

}  // namespace

Leg Longest_Runway(const skerrand::Airport_Info& airport) {
    Leg longest;
    for (const skerrand::Runway_Info& runway : airport.runways) {
        const Leg leg =
            Leg_Between(Point_Of(runway.lat_1, runway.lon_1), Point_Of(runway.lat_2, runway.lon_2));
        const bool counts = leg.angle * Earth_Radius >= Shortest_Runway;  // false if not a number
        if (counts && leg.angle > longest.angle) longest = leg;
    }
    return longest;
}

std::vector<Leg> Plan_Flight(const skerrand::Airport_Info& departure,
                             const skerrand::Airport_Info* destination) {
    Leg first = Longest_Runway(departure);
    if (destination == nullptr) return {{first.at, first.ahead, 2 * std::numbers::pi}};
    Leg last = Longest_Runway(*destination);
    const Vector way = Sum(1, last.at, -1, first.at);
    first = Best_Direction(first, way);
    last = Best_Direction(last, way);
    return {first, Leg_Between(On_Leg(first, first.angle).at, last.at), last};
}

double Duration(const std::vector<Leg>& flight) {
    const double length = Length_Of(flight);
    return length / Top_Speed(length) + Top_Speed(length) / Acceleration;
}

Aircraft Aircraft_At(const std::vector<Leg>& flight, double seconds) {
    double angle = Metres_At(flight, seconds) / Earth_Radius;
    std::size_t i = 0;
    for (; i + 1 < flight.size() && angle > flight[i].angle; ++i)
        angle -= flight[i].angle;
    const auto [at, ahead, rest] = On_Leg(flight[i], angle);
    const double lat = std::atan2(at[2], std::hypot(at[0], at[1]));
    const double lon = std::atan2(at[1], at[0]);
    const Vector east{-std::sin(lon), std::cos(lon), 0};
    const Vector north{-std::sin(lat) * std::cos(lon), -std::sin(lat) * std::sin(lon),
                       std::cos(lat)};
    const double heading = std::atan2(Dot(ahead, east), Dot(ahead, north));
    return {lat / Degree, lon / Degree, heading / Degree};
}

}  // namespace simulator
