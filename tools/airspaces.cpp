#include "tools/airspaces.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace world {

namespace {

using enum Outline_Kind;

constexpr double Radians = std::numbers::pi / 180;

// Ends of the world for a box; a hair inside, for on the date line itself east reads as west.
constexpr double Last_Latitude = 89.9;
constexpr double Last_Longitude = 179.99;

// The highest limits of the classes that charts tell apart, in feet.
constexpr int Class_D_Top = 2500;
constexpr int Class_C_Top = 4000;

// Outlines: courses are true and may have any number of turns, lengths are nautical miles.

Outline Disc(Position center, double radius) {
    // Files tell a circle by the square round it: from its middle to a corner.
    const int half_diagonal = static_cast<int>(std::lround(radius * std::numbers::sqrt2));
    return {{Center, center}, {Circle, {}, half_diagonal}};
}

/// A disc without what lies clockwise between two courses beyond `notch` from its centre.
Outline Notched_Disc(Position center, double radius, double notch, double from, double to) {
    return {{Start, Place_From(center, to, radius)},    {Center, center},
            {Arc_Cw, Place_From(center, from, radius)}, {Line, Place_From(center, from, notch)},
            {Arc_Cw, Place_From(center, to, notch)},    {Line, Place_From(center, to, radius)}};
}

/// A disc cut straight along the chord between two courses, which it goes round clockwise.
Outline Cut_Disc(Position center, double radius, double from, double to) {
    const Position start = Place_From(center, from, radius);
    return {
        {Center, center}, {Start, start}, {Arc_Cw, Place_From(center, to, radius)}, {Line, start}};
}

/// The part of a ring clockwise between two courses.
Outline Ring_Sector(Position center, double inner, double outer, double from, double to) {
    const Position start = Place_From(center, from, outer);
    return {{Start, start},
            {Center, center},
            {Arc_Cw, Place_From(center, to, outer)},
            {Line, Place_From(center, to, inner)},
            {Arc_Ccw, Place_From(center, from, inner)},
            {Line, start}};
}

/// A box with rounded corners, but the south-western one is bitten off.
Outline Rounded_Box(const Position_Box& box, double radius) {
    const auto [south, west] = box.south_west;
    const auto [north, east] = box.north_east;
    const double high = radius / 60;
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

/// The box of everything within `miles` of a place, but for what lies beyond the date line.
Position_Box Box_Round(Position center, double miles) {
    const double high = miles / 60;
    const double north = std::min(center.lat + high, Last_Latitude);
    const double south = std::max(center.lat - high, -Last_Latitude);
    // A circle reaches farthest east a little poleward of its centre.
    const double sine = std::sin(high * Radians) / std::cos(center.lat * Radians);
    const double wide = sine < 1 ? std::asin(sine) / Radians : 180;
    return {{south, std::max(center.lon - wide, -Last_Longitude)},
            {north, std::min(center.lon + wide, Last_Longitude)}};
}

constexpr int Top_Of_All = 66000;            // feet
constexpr int Bottom_Of_Upper_Area = 24500;  // feet
constexpr double Corner_Radius = 120;        // nautical miles

/// An area of a center that answers on a frequency, or an upper area, which has none.
struct Wide_Area {
    const char* name;
    Frequency frequency;
    double south, north, west, east;
};

constexpr Wide_Area Wide_Areas[] = {
    {"NEW YORK CENTER", 1321500, 36, 45.5, -80, -66},
    {"MIAMI CENTER", 1326500, 22, 30, -86, -76},
    {"SEATTLE CENTER", 1256000, 42, 49.5, -130, -116},
    {"LOS ANGELES CENTER", 1353000, 31, 38, -125, -113},
    {"HONOLULU CENTER", 1241000, 14, 28, -168, -148},
    {"ANCHORAGE CENTER", 1274000, 45, 60, -179.9, -160},
    {"PUERTO MONTT CONTROL", 1287000, -48, -36, -80, -67},
    {"LONDON CONTROL", 1276000, 50, 56, -8, 3},
    {"PARIS CONTROL", 1241250, 44, 51, -5, 8.2},
    {"BRATISLAVA CONTROL", 1302500, 45, 51, 11, 23},
    {"EMIRATES CONTROL", 1323000, 22, 28, 50, 58},
    {"TOKYO CONTROL", 1337000, 30, 42, 132, 148},
    {"SYDNEY CENTER", 1245500, -40, -28, 143, 158},
    {"AUCKLAND CONTROL", 1239000, -46, -25, 164, 179.5},
    {"NADI CONTROL", 1191000, -24, -10, 168, 179.9},
    {"NORTHEAST UPPER AREA", 0, 36, 47, -83, -62},
    {"ATLANTIC UPPER AREA", 0, 33, 59, -79, 4},
    {"PACIFIC COAST UPPER AREA", 0, 30, 51, -131, -111},
    {"HAWAII UPPER AREA", 0, 12, 30, -170, -146},
    {"WEST EUROPE UPPER AREA", 0, 42, 58, -12, 13},
    {"CENTRAL EUROPE UPPER AREA", 0, 43, 54, 8, 27},
    {"GULF UPPER AREA", 0, 19, 31, 47, 63},
    {"JAPAN UPPER AREA", 0, 28, 46, 128, 152},
    {"TASMAN UPPER AREA", 0, -48, -20, 140, 179},
};

Airspace_Facts Airspace_Of(const Wide_Area& area) {
    const bool has_center = area.frequency != 0;
    const Position_Box box{{area.south, area.west}, {area.north, area.east}};
    return {.name = area.name,
            .low_ft = has_center ? 0 : Bottom_Of_Upper_Area,
            .high_ft = Top_Of_All,
            .frequency = area.frequency,
            .facility = has_center ? area.name : "",
            .box = box,
            .outline = Rounded_Box(box, Corner_Radius)};
}

constexpr double Runway_Metres_Of_Large = 7500;
constexpr double Runway_Metres_Of_Middle = 4000;
constexpr double Box_Margin = 1;  // nautical miles round the farthest part

struct Place {
    const Airport_Facts& airport;
    Position_Box box;
    double turn = 0;  ///< of the longest runway, degrees

    Airspace_Facts Part(const char* part, int low_ft, int high_ft, Outline outline) const {
        return {.name = airport.name + ' ' + part,
                .low_ft = low_ft,
                .high_ft = high_ft,
                .box = box,
                .outline = std::move(outline)};
    }
};

Place Place_Of(const Airport_Facts& airport, double farthest) {
    Place place{airport, Box_Round(airport.position, farthest + Box_Margin)};
    double longest = 0;
    for (const Runway_Facts& runway : airport.runways) {
        const Runway_Line line = Line_Of_Runway(runway.end_1, runway.end_2);
        if (line.length_m <= longest) continue;
        longest = line.length_m;
        place.turn = line.heading;
    }
    return place;
}

// Shelves like an inverted cake, from the core at the ground out to areas that show on the widest
// views.
std::vector<Airspace_Facts> Large(const Airport_Facts& airport) {
    const Position center = airport.position;
    const Place at = Place_Of(airport, 250);
    const double turn = at.turn;
    return {
        at.Part("CONTROL ZONE", 0, Class_C_Top, Disc(center, 5)),
        at.Part("CLASS B CORE", 0, 10000, Notched_Disc(center, 8, 5, turn + 70, turn + 110)),
        at.Part("CLASS B 20", 1500, 10000, Notched_Disc(center, 20, 12, turn + 250, turn + 290)),
        at.Part("CLASS B EAST", 3000, 10000, Ring_Sector(center, 20, 30, turn + 20, turn + 160)),
        at.Part("CLASS B WEST", 3000, 10000, Ring_Sector(center, 20, 34, turn + 200, turn - 20)),
        at.Part("TERMINAL AREA", 4500, 24500, Notched_Disc(center, 60, 40, turn - 30, turn + 30)),
        at.Part("CONTROL AREA", 8500, 46000, Cut_Disc(center, 120, turn + 45, turn - 25)),
        at.Part("UPPER RING", 24500, 66000, Ring_Sector(center, 120, 250, turn + 90, turn - 45)),
    };
}

std::vector<Airspace_Facts> Middle(const Airport_Facts& airport) {
    const Position center = airport.position;
    const Place at = Place_Of(airport, 20);
    return {
        at.Part("CLASS C CORE", 0, Class_C_Top, Disc(center, 5)),
        at.Part("CLASS C SHELF", 1200, Class_C_Top,
                Ring_Sector(center, 5, 10, at.turn + 30, at.turn - 30)),
        at.Part("CLASS C OUTER", 2500, Class_C_Top,
                Cut_Disc(center, 20, at.turn + 60, at.turn - 20)),
    };
}

std::vector<Airspace_Facts> Small(const Airport_Facts& airport) {
    const Place at = Place_Of(airport, 4);
    return {at.Part("CLASS D", 0, Class_D_Top,
                    Cut_Disc(airport.position, 4, at.turn + 100, at.turn + 40))};
}

}  // namespace

std::vector<Airspace_Facts> Airspaces_Of(const std::vector<Airport_Facts>& airports) {
    std::vector<Airspace_Facts> airspaces;
    for (const Wide_Area& area : Wide_Areas)
        airspaces.push_back(Airspace_Of(area));
    for (const Airport_Facts& airport : airports) {
        if (std::ranges::find(airport.coms, Tower_Use, &Com_Facts::use) == airport.coms.end()) {
            continue;
        }
        double metres = 0;
        for (const Runway_Facts& runway : airport.runways)
            metres += Line_Of_Runway(runway.end_1, runway.end_2).length_m;
        std::ranges::move(metres >= Runway_Metres_Of_Large    ? Large(airport)
                          : metres >= Runway_Metres_Of_Middle ? Middle(airport)
                                                              : Small(airport),
                          std::back_inserter(airspaces));
    }
    return airspaces;
}

}  // namespace world
