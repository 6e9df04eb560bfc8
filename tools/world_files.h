#pragma once

#include <span>
#include <string>
#include <vector>

#include "tools/world_folder.h"

namespace world {

/// A scenery file of a world: where it lies and what is in it.
struct World_File {
    std::size_t area = 0;  ///< index in `Areas`
    std::string name;
    std::span<const Airport_Facts> airports;
    std::span<const Airspace_Facts> airspaces;
};

/// Brings the airports into the order of their areas, otherwise as they stood.
void Order_By_Area(std::vector<Airport_Facts>& airports);

/// Deals out the world's airports, which have to be in the order of their areas, and its airspaces.
/// Of the files with airspaces every second one holds airports too, as far as there are such; the
/// others are in the first area. The files point into `world`.
std::vector<World_File> Plan_Files(const World& world);

}  // namespace world
