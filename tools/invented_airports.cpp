#include "tools/invented_airports.h"

#include <array>
#include <cmath>

#include "tools/invented_names.h"
#include "tools/invented_network.h"
#include "tools/local_metres.h"
#include "tools/random.h"

namespace world {

namespace {

struct Range {
    int lowest;
    int highest;
};

struct Size_Class {
    double share;  // of all airports
    Range runways;
    Range points;
    Range parkings;
    double ils_chance;  // of each runway end
    int com_count;      // first so many of `Coms_By_Need`
};

constexpr std::array Size_Classes{
    Size_Class{0.0007, {2, 6}, {1000, 3000}, {60, 160}, 0.9, 7},
    Size_Class{0.01, {2, 3}, {150, 400}, {10, 30}, 0.5, 6},
    Size_Class{0.05, {1, 2}, {40, 120}, {3, 7}, 0.2, 3},
    Size_Class{0.44, {1, 2}, {4, 20}, {0, 1}, 0.005, 1},
    Size_Class{1.0, {1, 1}, {0, 0}, {0, 0}, 0, 0},  // all the others
};

constexpr std::array Coms_By_Need{
    Com_Use::Unicom,   Com_Use::Tower,     Com_Use::Ground,    Com_Use::Atis,
    Com_Use::Approach, Com_Use::Clearance, Com_Use::Departure,
};

int Within(Random& random, Range range) {
    return Between(random, range.lowest, range.highest);
}

// Steps of the golden ratio spread over 0 to 1 as evenly as can be, so that each class gets its
// share of any count of airports.
const Size_Class& Class_Of(int index) {
    double whole = 0;
    double place = std::modf((index + 0.5) * 0.6180339887498949, &whole);
    for (const Size_Class& size : Size_Classes) {
        if (place < size.share) return size;
        place -= size.share;
    }
    return Size_Classes.back();
}

// Continents as boxes: most airports stand in the first ones.
Position Invent_Position(Random& random) {
    struct Box {
        double share, south, north, west, east;
    };
    static constexpr Box Boxes[] = {
        {0.35, 26, 50, -124, -70},   {0.1, 50, 70, -165, -60}, {0.2, 37, 65, -9, 45},
        {0.1, -40, 10, -75, -40},    {0.1, -33, 30, 12, 40},   {0.1, 10, 60, 60, 140},
        {1.0, -45, -10, 115, 178.5},
    };
    double place = Fraction(random);
    for (const Box& box : Boxes) {
        if (place < box.share) {
            return {box.south + Fraction(random) * (box.north - box.south),
                    box.west + Fraction(random) * (box.east - box.west)};
        }
        place -= box.share;
    }
    return {};
}

void Invent_Coms(Random& random, int count, Airport_Facts& airport) {
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        // 118 to 136.975 MHz in steps of 25 kHz.
        airport.coms.push_back({Coms_By_Need[i], 1180000 + 250 * Between(random, 0, 759)});
    }
}

void Invent_Ils(Random& random, double chance, Airport_Facts& airport) {
    for (Runway_Facts& runway : airport.runways) {
        const double heading = Line_Of_Runway(runway.end_1, runway.end_2).heading;
        for (const bool reciprocal : {false, true}) {
            if (!Chance(random, chance)) continue;
            // 108.1 to 111.9 MHz, odd tenths. The transmitter stands at the far end.
            runway.ils.push_back(
                {"I" + Invent_Letters(random, 3), reciprocal ? runway.end_1 : runway.end_2,
                 reciprocal ? heading - 180 : heading, 1081000 + 2000 * Between(random, 0, 19)});
        }
    }
}

}  // namespace

std::vector<Airport_Facts> Invent_Airports(int count, std::uint64_t seed) {
    Random random{std::mt19937_64(seed)};
    std::vector<Airport_Facts> airports(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        Airport_Facts& airport = airports[static_cast<std::size_t>(i)];
        const Size_Class& size = Class_Of(i);
        airport.ident = Nth_Ident(i);
        airport.name = Invent_Name(random);
        airport.position = Invent_Position(random);
        airport.elevation_ft = Between(random, 0, 5000);
        Invent_Coms(random, size.com_count, airport);
        Invent_Runways(random, Within(random, size.runways), airport);
        Invent_Ils(random, size.ils_chance, airport);
        Invent_Parkings(random, Within(random, size.parkings), airport);
        Invent_Taxiways(random, Within(random, size.points), airport);
    }
    return airports;
}

}  // namespace world
