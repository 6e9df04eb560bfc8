#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "scenery/airport_info.h"

/// The tables of the database. They stand from the load of the picker until a pick releases them;
/// the counts stay, since the files carry none and are read again by these.
namespace skerrand {

extern std::vector<Airport_Info> airport_table;  ///< in the order of the scan
extern std::int32_t airport_count;

extern std::vector<std::string> airspace_files;  ///< lower-case paths of files with airspaces
extern std::int32_t airspace_file_count;

/// Frees the airports; `airport_count` keeps its value.
void Release_Airport_Table();

/// Frees the list; `airspace_file_count` keeps its value.
void Release_Airspace_Files();

}  // namespace skerrand
