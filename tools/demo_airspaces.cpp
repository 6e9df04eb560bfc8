#include "tools/demo_airspaces.h"

#include "tools/airport_airspaces.h"
#include "tools/outlines.h"

namespace world {

namespace {

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

}  // namespace

std::vector<Airspace_Facts> Demo_Airspaces(const std::vector<Airport_Facts>& airports) {
    std::vector<Airspace_Facts> airspaces;
    for (const Wide_Area& area : Wide_Areas)
        airspaces.push_back(Airspace_Of(area));
    for (const Airport_Facts& airport : airports) {
        for (Airspace_Facts& airspace : Airspaces_Of(airport))
            airspaces.push_back(std::move(airspace));
    }
    return airspaces;
}

}  // namespace world
