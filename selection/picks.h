#pragma once

#include <vector>

#include "scenery/airport_info.h"
#include "scenery/airspace_info.h"

/// The two airports of the flight with their airspaces. They outlive the picker and its table, and
/// stand until the next pick replaces them.
namespace skerrand {

extern Airport_Info departure_airport;
extern Airport_Info destination_airport;

extern std::vector<Airspace_Info> departure_airspaces;
extern std::vector<Airspace_Info> destination_airspaces;

}  // namespace skerrand
