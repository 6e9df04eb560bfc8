#pragma once

#include <span>
#include <string>

#include "tools/world_facts.h"

/// The scenery areas of a world that is made here.
namespace world {

struct Area {
    const char* title;
    const char* local;   ///< as scenery.cfg has it; empty for an area that lies elsewhere
    const char* folder;  ///< of its scenery files, relative to the main folder, as on the disk
    const char* remote;
};

std::span<const Area> Areas();

/// The index in `Areas` of the one whose files hold an airport at that place.
std::size_t Area_Of(Position position);

/// The text of scenery.cfg.
std::string Scenery_Cfg();

}  // namespace world
