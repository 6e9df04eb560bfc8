#pragma once

#include "tools/airport_facts.h"

/// Worlds of any size, made of the airports of a small one.
namespace world {

/// So many four-letter identifiers differ.
inline constexpr int Most_Moved_Airports = 26 * 26 * 26 * 26;

/// Airports that do not exist: the models with other names at other places, the same for the same
/// count. Their sizes follow those of the real world: one in 29 is whole, the others are strips,
/// so that 27,000 of the demonstration airports have about 34,000 runways, 21,000 parkings,
/// 356,000 taxi points and 262,000 paths. No models give no airports.
std::vector<Airport_Facts> Moved_Airports(const std::vector<Airport_Facts>& models, int count);

}  // namespace world
