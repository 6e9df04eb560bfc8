#include "tools/airport_airspaces.h"

#include <algorithm>

#include "tools/local_metres.h"
#include "tools/outlines.h"

namespace world {

namespace {

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
                .facility = {},
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

bool Has_Tower(const Airport_Facts& airport) {
    return std::any_of(airport.coms.begin(), airport.coms.end(),
                       [](const Com_Facts& com) { return com.use == Com_Use::Tower; });
}

}  // namespace

std::vector<Airspace_Facts> Airspaces_Of(const Airport_Facts& airport) {
    if (!Has_Tower(airport)) return {};
    double metres = 0;
    for (const Runway_Facts& runway : airport.runways)
        metres += Line_Of_Runway(runway.end_1, runway.end_2).length_m;
    if (metres >= Runway_Metres_Of_Large) return Large(airport);
    return metres >= Runway_Metres_Of_Middle ? Middle(airport) : Small(airport);
}

}  // namespace world
