#pragma once

#include <optional>

#include "scenery/airport_info.h"
#include "tools/simulator/runway_line.h"

/// Where an aircraft goes that has landed.
namespace simulator {

struct Runway_Exit {
    double along = 0;  ///< metres from the runway's start to where the aircraft leaves it
    Vector stand;
};

/// The nearest taxi point or parking beside the runway for an aircraft that is ready to leave it
/// `along` metres from its start: one further on, or else one that it must turn back to. Nothing if
/// the airport has none within 2 km.
std::optional<Runway_Exit> Nearest_Exit(const skerrand::Airport_Info& airport,
                                        const Runway_Line& line, double along);

}  // namespace simulator
