#include "tools/simulator/taxi_off.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace simulator {

namespace {

constexpr double Farthest = 2000;    // metres
constexpr double Beside_Edge = 30;   // metres between the runway's edge and what lies beside it
constexpr double Way_Back = 100000;  // makes any point that lies ahead the nearer one

std::vector<Vector> Stands(const skerrand::Airport_Info& airport) {
    std::vector<Vector> points;
    const auto add = [&points](const auto& place) {
        if (std::isfinite(place.lat) && std::isfinite(place.lon)) {
            points.push_back(Point_Of({place.lat, place.lon}));
        }
    };
    std::for_each(airport.taxi_points.begin(), airport.taxi_points.end(), add);
    std::for_each(airport.parkings.begin(), airport.parkings.end(), add);
    return points;
}

}  // namespace

std::optional<Runway_Exit> Nearest_Exit(const skerrand::Airport_Info& airport,
                                        const Runway_Line& line, double along) {
    std::optional<Runway_Exit> nearest;
    double least = std::numeric_limits<double>::infinity();
    for (const Vector& point : Stands(airport)) {
        const Offset offset = Offset_From(line, point);
        const double aside = std::abs(offset.left);
        const double further = offset.along - along;
        if (aside < line.width / 2 + Beside_Edge) continue;
        if (Distance(point, On_Line(line, along).at) > Farthest) continue;
        // Half right or left off the runway, as far as there is room for that.
        const double straight = std::clamp(further - aside, 0.0, line.length - along);
        const bool is_ahead = further >= 0 && offset.along <= line.length;
        const double cost = std::abs(further) + aside + (is_ahead ? 0 : Way_Back);
        if (cost >= least) continue;
        least = cost;
        nearest = Runway_Exit{along + straight, point};
    }
    return nearest;
}

}  // namespace simulator
