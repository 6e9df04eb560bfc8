#pragma once

#include <cstdint>
#include <vector>

#include "tools/world_facts.h"

/// Airports that do not exist, for worlds of any size.
namespace world {

/// The most airports whose four-letter identifiers all differ.
inline constexpr int Most_Invented_Airports = 26 * 26 * 26 * 26;

/// Invents `count` airports (0 to `Most_Invented_Airports`). The same count and seed give the same
/// airports. Their sizes follow those of the real world: most are strips and small fields, a few
/// have thousands of taxi points, and 27,000 of them come to about 34,000 runways, 21,000 parkings,
/// 360,000 taxi points and 250,000 paths.
std::vector<Airport_Facts> Invent_Airports(int count, std::uint64_t seed);

}  // namespace world
