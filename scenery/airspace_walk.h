#pragma once

#include <cstdint>

/// The top level of the airspace section of the BGL file in hand.
namespace skerrand {

/// Walks the entries from `start` on. In the search (the database is ready and this is no first
/// run) the objects of the groups are read and nothing is listed. At any other time a file with a
/// group of airspaces is added to `airspace_files` under the name `current_file`, unless it is the
/// last one there already. False after a fault of the file.
bool Walk_Airspace_Section(std::int64_t start);

}  // namespace skerrand
