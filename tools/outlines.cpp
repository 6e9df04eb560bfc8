#include "tools/outlines.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace world {

namespace {

using enum Outline_Kind;

constexpr double Radians = std::numbers::pi / 180;
constexpr double Degrees_Of_Mile = 1.0 / 60;

// Ends of the world for a box; a hair inside, for on the date line itself east reads as west.
constexpr double Last_Latitude = 89.9;
constexpr double Last_Longitude = 179.99;

}  // namespace

Position Place_From(Position from, double course, double miles) {
    const double lat = from.lat * Radians;
    const double arc = miles * Degrees_Of_Mile * Radians;
    const double north =
        std::sin(lat) * std::cos(arc) + std::cos(lat) * std::sin(arc) * std::cos(course * Radians);
    const double east = std::sin(course * Radians) * std::sin(arc);
    const double ahead =
        std::cos(lat) * std::cos(arc) - std::sin(lat) * std::sin(arc) * std::cos(course * Radians);
    return {std::asin(std::clamp(north, -1.0, 1.0)) / Radians,
            std::remainder(from.lon + std::atan2(east, ahead) / Radians, 360.0)};
}

Outline Disc(Position center, double radius) {
    // Files tell a circle by the square round it: from its middle to a corner.
    const int half_diagonal = static_cast<int>(std::lround(radius * std::numbers::sqrt2));
    return {{Center, center}, {Circle, {}, half_diagonal}};
}

Outline Notched_Disc(Position center, double radius, double notch, double from, double to) {
    return {{Start, Place_From(center, to, radius)},    {Center, center},
            {Arc_Cw, Place_From(center, from, radius)}, {Line, Place_From(center, from, notch)},
            {Arc_Cw, Place_From(center, to, notch)},    {Line, Place_From(center, to, radius)}};
}

Outline Cut_Disc(Position center, double radius, double from, double to) {
    const Position start = Place_From(center, from, radius);
    return {
        {Center, center}, {Start, start}, {Arc_Cw, Place_From(center, to, radius)}, {Line, start}};
}

Outline Ring_Sector(Position center, double inner, double outer, double from, double to) {
    const Position start = Place_From(center, from, outer);
    return {{Start, start},
            {Center, center},
            {Arc_Cw, Place_From(center, to, outer)},
            {Line, Place_From(center, to, inner)},
            {Arc_Ccw, Place_From(center, from, inner)},
            {Line, start}};
}

Outline Rounded_Box(const Position_Box& box, double radius) {
    const auto [south, west] = box.south_west;
    const auto [north, east] = box.north_east;
    const double high = radius * Degrees_Of_Mile;
    const double north_wide = high / std::cos(north * Radians);
    const double south_wide = high / std::cos(south * Radians);
    return {{Start, {south + high, west}},
            {Line, {north - high, west}},
            {Center, {north - high, west + north_wide}},
            {Arc_Cw, {north, west + north_wide}},
            {Line, {north, east - north_wide}},
            {Center, {north - high, east - north_wide}},
            {Arc_Cw, {north - high, east}},
            {Line, {south + high, east}},
            {Center, {south + high, east - south_wide}},
            {Arc_Cw, {south, east - south_wide}},
            {Line, {south, west + south_wide}},
            {Center, box.south_west},
            {Arc_Ccw, {south + high, west}}};
}

Outline Jagged_Polygon(Position center, double radius, int corners) {
    Outline outline;
    for (int i = 0; i <= corners; ++i) {
        const double miles = i % 2 == 0 || i == corners ? radius : radius * 0.9;
        outline.push_back({i == 0 ? Start : Line, Place_From(center, 360.0 * i / corners, miles)});
    }
    return outline;
}

Position_Box Box_Round(Position center, double miles) {
    const double high = miles * Degrees_Of_Mile;
    const double north = std::min(center.lat + high, Last_Latitude);
    const double south = std::max(center.lat - high, -Last_Latitude);
    // A circle reaches farthest east a little poleward of its centre.
    const double sine = std::sin(high * Radians) / std::cos(center.lat * Radians);
    const double wide = sine < 1 ? std::asin(sine) / Radians : 180;
    return {{south, std::max(center.lon - wide, -Last_Longitude)},
            {north, std::min(center.lon + wide, Last_Longitude)}};
}

}  // namespace world
