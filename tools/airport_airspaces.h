#pragma once

#include "tools/airspace_facts.h"

/// The airspaces that an airport has by its size. They are made up in the manner of real ones.
namespace world {

/// None for an airport without a tower. By the length of all its runways together an airport is
/// large (7.5 km; class B), middle (4 km; class C) or small (class D). All parts of one airport's
/// airspace share the box of the whole, so that whoever finds one finds all, and are turned to its
/// longest runway.
std::vector<Airspace_Facts> Airspaces_Of(const Airport_Facts& airport);

}  // namespace world
