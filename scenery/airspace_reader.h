#pragma once

#include <cstdint>

/// The airspaces of the BGL file in hand. Both operations end at an entry of an unknown type, and
/// answer false after a fault of the file; what was read ahead of it stands.
namespace skerrand {

/// Walks the groups of the section from `start` on. In the search (the database is ready and this
/// is no first run) their objects are read and nothing is listed. At any other time a file with a
/// group is added to `airspace_files` under the name `current_file`, unless it is the last one
/// there already.
bool Walk_Airspace_Section(std::int64_t start);

/// Reads the objects of a group, of which `group_offset` is the first entry, into
/// `departure_airspaces` and `destination_airspaces`: an airspace for each bounding box that
/// encloses the airport. An airport on an edge is outside, and a box across the meridian of 180
/// degrees, whose west is above its east, encloses nothing. The records ahead of an object's first
/// such box are passed over, and a record of an unknown type ends the object.
bool Walk_Airspace_Group(std::int64_t group_offset);

}  // namespace skerrand
