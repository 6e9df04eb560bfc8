#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/world_facts.h"

/// The airports of the demonstration world, from a text of facts (`data/README.md` tells its
/// lines).
namespace world {

/// Reads the whole text, UTF-8. Answers an empty text, or what is wrong in which line ("line 12:
/// ..."); `airports` then holds what stood ahead of it.
std::string Parse_Airports(std::string_view text, std::vector<Airport_Facts>& airports);

/// Finds out which unnamed paths of an airport lie on a runway or end at a parking, and gives them
/// that kind: the facts only tell points. A path on a runway keeps both ends within 5 metres of its
/// centre line; a path to a parking ends within a metre of it.
void Settle_Path_Kinds(Airport_Facts& airport);

}  // namespace world
