#pragma once

#include "tools/random.h"
#include "tools/world_facts.h"

/// Runways, parkings and taxiways for an airport that does not exist yet but for its position.
/// Call them in this order: taxiways run along the first runway and lead to the parkings.
namespace world {

void Invent_Runways(Random& random, int count, Airport_Facts& airport);
void Invent_Parkings(Random& random, int count, Airport_Facts& airport);

/// `count` taxi points, and paths in the proportion of the real world to them.
void Invent_Taxiways(Random& random, int count, Airport_Facts& airport);

}  // namespace world
