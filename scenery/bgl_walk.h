#pragma once

#include <cstdint>

/// The walk from the header of the BGL file in hand to its airports and airspaces.
namespace skerrand {

/// Walks both sections of the file in `bgl_bytes`, the airports first. While the database is not
/// ready the airports are added to `airport_table`; a file with groups of airspaces goes into
/// `airspace_files` under the name `current_file`, or has them searched. A fault of the file ends
/// its walk in silence, and what was read stands.
void Walk_Bgl();

/// Walks the lists of airports from `start` on. False after a fault of the file.
bool Walk_Airport_Section(std::int64_t start);

}  // namespace skerrand
