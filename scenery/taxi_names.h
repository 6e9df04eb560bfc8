#pragma once

#include <string>
#include <vector>

#include "scenery/airport_info.h"

/// The names of taxi paths, which hold the decimal number of their name until the names are known.
namespace skerrand {

/// Gives every path of the kind `Path_Taxiway` whose name is the number of one of `names` that
/// name. The names are given one after the other, from the first to the last, so that a path whose
/// new name is itself the number of a later one is named again.
void Name_Taxiways(const std::vector<std::string>& names, std::vector<Taxi_Path>& paths);

/// Gives every path of the kind `Path_Runway` the name "Runway " and the first identifier of the
/// runway with its number. The number behind the last runway gives an empty identifier; a name that
/// is no such number stays, and so do all where there are no runways.
void Name_Runway_Paths(const std::vector<Runway_Info>& runways, std::vector<Taxi_Path>& paths);

}  // namespace skerrand
