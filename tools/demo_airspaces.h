#pragma once

#include "tools/airspace_facts.h"

namespace world {

/// The airspaces of the demonstration world: large areas round its airports, then those of each
/// airport by its size. Neither are real ones.
std::vector<Airspace_Facts> Demo_Airspaces(const std::vector<Airport_Facts>& airports);

}  // namespace world
