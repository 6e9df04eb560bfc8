#include "tools/moved_airports.h"

#include <algorithm>
#include <cmath>

namespace world {

namespace {

constexpr int Whole_Each = 29;  // 27,000 / 29 times the models' sizes come to those of the world

// A factor without a divisor in common with the number of identifiers visits each of them once.
std::string Nth_Ident(int index) {
    auto code = static_cast<std::int64_t>(index) * 123457 % Most_Moved_Airports;
    std::string ident(4, 'A');
    for (char& letter : ident) {
        letter = static_cast<char>('A' + code % 26);
        code /= 26;
    }
    return ident;
}

// Steps of two irrational numbers spread over the globe as evenly as can be.
Position Nth_Position(int index) {
    double whole = 0;
    return {std::modf(index * 0.7548776662466927, &whole) * 120 - 50,
            std::modf(index * 0.5698402909980532, &whole) * 359 - 179.5};
}

void Move(Position& position, Position from, Position to) {
    // Lengths stay, so the degrees of longitude change with the latitude.
    const double wider = std::cos(from.lat * 0.0174533) / std::cos(to.lat * 0.0174533);
    position = {to.lat + position.lat - from.lat, to.lon + (position.lon - from.lon) * wider};
}

// A strip has one or two runways and at most one frequency.
Airport_Facts Strip_Of(const Airport_Facts& model, int index) {
    const auto some = [](const auto& all, int most) {
        const auto count = std::min(std::ssize(all), std::ptrdiff_t{most});
        return std::remove_cvref_t<decltype(all)>(all.begin(), all.begin() + count);
    };
    Airport_Facts strip{.ident = {},
                        .name = model.name,
                        .position = model.position,
                        .elevation_ft = model.elevation_ft,
                        .coms = some(model.coms, index % 2),
                        .runways = some(model.runways, index % 4 == 0 ? 2 : 1)};
    for (Runway_Facts& runway : strip.runways)
        runway.ils.clear();
    return strip;
}

}  // namespace

std::vector<Airport_Facts> Moved_Airports(const std::vector<Airport_Facts>& models, int count) {
    std::vector<Airport_Facts> airports;
    for (int i = 0; i < count && !models.empty(); ++i) {
        const bool is_whole = i % Whole_Each == 0;
        const auto model = static_cast<std::size_t>(is_whole ? i / Whole_Each : i) % models.size();
        Airport_Facts& airport =
            airports.emplace_back(is_whole ? models[model] : Strip_Of(models[model], i));
        airport.ident = Nth_Ident(i);
        airport.name = airport.ident + ' ' + airport.name;
        const Position from = airport.position;
        const Position to = Nth_Position(i);
        Move(airport.position, from, to);
        for (Runway_Facts& runway : airport.runways) {
            Move(runway.end_1, from, to);
            Move(runway.end_2, from, to);
            for (Ils_Facts& ils : runway.ils)
                Move(ils.transmitter, from, to);
        }
        for (Position& point : airport.points)
            Move(point, from, to);
        for (Parking_Facts& parking : airport.parkings)
            Move(parking.position, from, to);
    }
    return airports;
}

}  // namespace world
