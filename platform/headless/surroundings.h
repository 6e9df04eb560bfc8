#pragma once

#include <string>
#include <vector>

/// What stands around the program, as the script sets it.
namespace platform::headless {

/// Entries of the drive list of windows loaded from now on, in Windows-1252.
extern std::vector<std::string> drive_entries;

void Reset_Surroundings();

}  // namespace platform::headless
