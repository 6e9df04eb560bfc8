#pragma once

#include <filesystem>

#include "tools/airspaces.h"
#include "tools/magnetic_grid.h"

/// A simulator's main folder as a whole. Operations answer an empty text, or what went wrong in
/// words for the user.
namespace world {

struct World {
    std::vector<Airport_Facts> airports = {};
    Coarse_Grid variation = {};
    int airports_of_file = 1;  ///< at most so many in one scenery file, at least 1
    std::vector<Airspace_Facts> airspaces = {};
    int airspace_files = 1;  ///< scenery files that hold them, at least 1
};

/// Makes the folder ready to be written: creates it, or empties it if it holds a world that was
/// written here before. A folder that holds anything else is refused and left as it is.
std::string Prepare_Folder(const std::filesystem::path& folder);

/// Writes the world to a prepared folder. The file by which Skerrand knows a simulator's folder,
/// fs2002.exe, comes last, so that an unfinished world is not taken for one.
std::string Write_World(const std::filesystem::path& folder, World world);

/// Reads a whole file.
std::string Read_File(const std::filesystem::path& path, std::string& bytes);

}  // namespace world
