#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tools/airspace_facts.h"
#include "tools/magnetic_grid.h"
#include "tools/world_facts.h"

/// A simulator's main folder as a whole. Operations answer an empty text, or what went wrong in
/// words for the user.
namespace world {

struct World {
    std::vector<Airport_Facts> airports;
    Coarse_Grid variation;
    int airports_of_file = 4;  ///< at most so many in one scenery file, at least 1
    std::vector<Airspace_Facts> airspaces = {};
    int airspace_files = 0;  ///< scenery files that hold them; at least 1 if there are airspaces
};

/// Makes the folder ready to be written: creates it, or empties it if it holds a world that was
/// written here before. A folder that holds anything else is refused and left as it is.
std::string Prepare_Folder(const std::filesystem::path& folder);

/// Writes the world to a prepared folder. The file by which Skerrand knows a simulator's folder,
/// fs2002.exe, comes last, so that an unfinished world is not taken for one.
std::string Write_World(const std::filesystem::path& folder, World world);

}  // namespace world
