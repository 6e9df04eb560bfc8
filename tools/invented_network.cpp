#include "tools/invented_network.h"

#include <cmath>
#include <numbers>

#include "tools/local_metres.h"

namespace world {

namespace {

constexpr double Paths_Of_Point = 250.0 / 360.0;
constexpr double Point_Spacing = 60;  // metres
constexpr int Points_Of_Row = 40;
constexpr double Row_Spacing = 90;
constexpr double First_Row = 150;  // from the middle of the airport
constexpr int Row_Letters = 26;
constexpr int Parkings_Of_Row = 30;

// A place by its metres along a heading and to the right of it.
Position Place(const Airport_Facts& airport, double heading, double along, double right) {
    const double turn = heading * std::numbers::pi / 180;
    return From_Local(airport.position, {along * std::sin(turn) + right * std::cos(turn),
                                         along * std::cos(turn) - right * std::sin(turn)});
}

double First_Heading(const Airport_Facts& airport) {
    if (airport.runways.empty()) return 0;
    const Runway_Facts& runway = airport.runways.front();
    return Line_Of_Runway(runway.end_1, runway.end_2).heading;
}

// Rows along the first runway, named A to Z and again with a digit: A1 to Z1, A2 ...
std::string Row_Name(int row) {
    std::string name(1, static_cast<char>('A' + row % Row_Letters));
    return row < Row_Letters ? name : name + std::to_string(row / Row_Letters);
}

Path_Facts Invent_Path(Random& random, int point, const Airport_Facts& airport) {
    Path_Facts path{Path_Kind::Taxiway, point, point + 1, 0, {}};
    if (point % 9 == 4 && !airport.parkings.empty()) {
        path.kind = Path_Kind::Parking;
        path.end = Between(random, 0, static_cast<int>(airport.parkings.size()) - 1);
    } else if (point % 20 == 10 && !airport.runways.empty()) {
        path.kind = Path_Kind::Runway;
        path.runway = Between(random, 0, static_cast<int>(airport.runways.size()) - 1);
    } else if (Chance(random, 0.6)) {
        path.taxiway = Row_Name(point / Points_Of_Row);
    }
    return path;
}

}  // namespace

void Invent_Runways(Random& random, int count, Airport_Facts& airport) {
    const int first_number = Between(random, 1, 18);
    const double length = Between(random, 350 + 300 * count, 1200 + 450 * count);
    for (int i = 0; i < count; ++i) {
        // Pairs of parallel runways, 400 m to the left and right of the middle; each pair lies
        // 60 degrees off the last one.
        const bool paired = (i ^ 1) < count;
        const bool left = i % 2 == 0;
        const int number = (first_number + 6 * (i / 2) - 1) % 18 + 1;
        const double heading = 10.0 * number;
        const double right = paired ? (left ? -400 : 400) : 0;
        Runway_Facts runway;
        runway.number = number;
        if (paired) runway.letter = left ? Runway_Letter::Left : Runway_Letter::Right;
        runway.end_1 = Place(airport, heading, -length / 2, right);
        runway.end_2 = Place(airport, heading, length / 2, right);
        runway.width_ft = 60 + 20 * count;
        airport.runways.push_back(runway);
    }
}

void Invent_Parkings(Random& random, int count, Airport_Facts& airport) {
    const double heading = First_Heading(airport);
    const bool has_gates = count >= 10;
    for (int i = 0; i < count; ++i) {
        const int row = i / Parkings_Of_Row;
        const int column = i % Parkings_Of_Row - Parkings_Of_Row / 2;
        Parking_Facts parking;
        parking.position = Place(airport, heading, 50 * column, 60 + 40 * row);
        parking.radius_m = static_cast<float>(Between(random, 8, has_gates ? 36 : 14));
        parking.number = i + 1;
        parking.label = has_gates ? Label_Gate_A + i / 12 : Label_Parking;
        airport.parkings.push_back(parking);
    }
}

void Invent_Taxiways(Random& random, int count, Airport_Facts& airport) {
    const double heading = First_Heading(airport);
    for (int i = 0; i < count; ++i) {
        const int row = i / Points_Of_Row;
        const int column = i % Points_Of_Row - Points_Of_Row / 2;
        airport.points.push_back(
            Place(airport, heading, Point_Spacing * column, First_Row + Row_Spacing * row));
    }
    const int path_count = static_cast<int>(std::lround(count * Paths_Of_Point));
    for (int i = 0; i < path_count; ++i) {
        // Spread over all points; the last point has no next one.
        const int point = static_cast<int>(i / Paths_Of_Point);
        airport.paths.push_back(Invent_Path(random, std::min(point, count - 2), airport));
    }
}

}  // namespace world
