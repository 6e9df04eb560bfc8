#include "tools/invented_airspaces.h"

#include <cstdint>

#include "tools/airport_airspaces.h"
#include "tools/outlines.h"

namespace world {

namespace {

constexpr std::int64_t World_Airports = 27000;
constexpr std::int64_t World_Airspaces = 5000;
constexpr std::int64_t World_Airspace_Files = 60;

constexpr double Miles_Of_Corner = 2;

int In_Proportion(std::int64_t whole, int airports) {
    return static_cast<int>((whole * airports + World_Airports / 2) / World_Airports);
}

Airspace_Facts District_Of(const Airport_Facts& airport, std::size_t number) {
    const int corners = 9 + static_cast<int>(number % 32);
    const double radius = corners * Miles_Of_Corner;
    const int low_ft = static_cast<int>(number % 10) * 1000;
    return {.name = airport.name + " DISTRICT",
            .low_ft = low_ft,
            .high_ft = low_ft + 2000,
            .facility = {},
            .box = Box_Round(airport.position, radius),
            .outline = Jagged_Polygon(airport.position, radius, corners)};
}

}  // namespace

int Airspaces_For(int airports) {
    return In_Proportion(World_Airspaces, airports);
}

int Airspace_Files_For(int airports) {
    return Airspaces_For(airports) == 0
               ? 0
               : std::max(1, In_Proportion(World_Airspace_Files, airports));
}

std::vector<Airspace_Facts> Invent_Airspaces(const std::vector<Airport_Facts>& airports,
                                             int count) {
    const auto wanted = static_cast<std::size_t>(count);
    std::vector<Airspace_Facts> airspaces;
    std::vector<const Airport_Facts*> others;
    for (const Airport_Facts& airport : airports) {
        if (airspaces.size() >= wanted) break;
        std::vector<Airspace_Facts> parts = Airspaces_Of(airport);
        if (parts.empty()) others.push_back(&airport);
        for (Airspace_Facts& part : parts)
            airspaces.push_back(std::move(part));
    }
    if (airspaces.size() > wanted) airspaces.resize(wanted);
    for (std::size_t i = 0; i < others.size() && airspaces.size() < wanted; ++i)
        airspaces.push_back(District_Of(*others[i], i));
    return airspaces;
}

}  // namespace world
