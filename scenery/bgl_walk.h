#pragma once

#include <string>

/// The walk from the header of a BGL file to its airports and airspaces.
namespace skerrand {

/// Reads the file of that path into `bgl_bytes` and walks it, unless it lacks the magic. False if
/// it cannot be read. `current_file` becomes the path in lower case.
bool Walk_File(const std::string& path);

/// Walks both sections of the file in `bgl_bytes`, the airports first. While the database is not
/// ready the airports are added to `airport_table`; a file with groups of airspaces goes into
/// `airspace_files` under the name `current_file`, or has them searched. A fault of the file ends
/// its walk in silence, and what was read stands.
void Walk_Bgl();

}  // namespace skerrand
