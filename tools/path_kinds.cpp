#include <cmath>
#include <optional>

#include "tools/demo_airports.h"
#include "tools/local_metres.h"

namespace world {

namespace {

constexpr double Runway_Reach = 5;  // metres to either side of the centre line
constexpr double Parking_Reach = 1;

bool Is_On(const Runway_Facts& runway, Position position) {
    const Local_Metres line = To_Local(runway.end_1, runway.end_2);
    const Local_Metres place = To_Local(runway.end_1, position);
    const double length = std::hypot(line.east, line.north);
    if (length <= 0) return false;
    const double along = (place.east * line.east + place.north * line.north) / length;
    const double across = (place.east * line.north - place.north * line.east) / length;
    return along >= 0 && along <= length && std::abs(across) <= Runway_Reach;
}

std::optional<int> Runway_Under(const Airport_Facts& airport, Position start, Position end) {
    for (std::size_t i = 0; i < airport.runways.size(); ++i) {
        const Runway_Facts& runway = airport.runways[i];
        if (Is_On(runway, start) && Is_On(runway, end)) return static_cast<int>(i);
    }
    return std::nullopt;
}

std::optional<int> Parking_At(const Airport_Facts& airport, Position position) {
    for (std::size_t i = 0; i < airport.parkings.size(); ++i) {
        const Local_Metres way = To_Local(position, airport.parkings[i].position);
        if (std::hypot(way.east, way.north) <= Parking_Reach) return static_cast<int>(i);
    }
    return std::nullopt;
}

}  // namespace

void Settle_Path_Kinds(Airport_Facts& airport) {
    for (Path_Facts& path : airport.paths) {
        if (!path.taxiway.empty()) continue;
        const Position start = airport.points[static_cast<std::size_t>(path.start)];
        const Position end = airport.points[static_cast<std::size_t>(path.end)];
        if (const auto runway = Runway_Under(airport, start, end)) {
            path.kind = Path_Kind::Runway;
            path.runway = *runway;
        } else if (const auto parking = Parking_At(airport, end)) {
            path.kind = Path_Kind::Parking;
            path.end = *parking;
        }
    }
}

}  // namespace world
