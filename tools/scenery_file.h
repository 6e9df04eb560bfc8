#pragma once

#include <span>
#include <string>

#include "tools/airspaces.h"
#include "tools/magnetic_grid.h"

/// Scenery (BGL) files, put together in memory.
namespace world {

/// A whole scenery file with these airports and airspaces, in their order; a section without any is
/// left out. Texts and counts have to fit the format as `Parse_Airports` sees to it.
std::string Scenery_File(std::span<const Airport_Facts> airports,
                         std::span<const Airspace_Facts> airspaces);

/// The simulator's file magdec.bgl: the variation of every whole degree.
std::string Magdec_File(const Coarse_Grid& grid);

}  // namespace world
