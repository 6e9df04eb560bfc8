#pragma once

#include "tools/airspace_facts.h"

namespace world {

/// How many airspaces, and scenery files with airspaces, go with so many airports: 5,000 and 60
/// with the 27,000 of the whole world.
int Airspaces_For(int airports);
int Airspace_Files_For(int airports);

/// `count` airspaces: those that the airports have by their size, then districts of 9 to 40 corners
/// round others. Fewer if the airports run out.
std::vector<Airspace_Facts> Invent_Airspaces(const std::vector<Airport_Facts>& airports, int count);

}  // namespace world
