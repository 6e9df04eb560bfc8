#pragma once

#include <cstdint>

/// The airspaces of the BGL file in hand that lie round the departure or the destination airport.
///
/// An airspace belongs to an airport if its bounding box encloses the airport's position; an
/// airport on an edge is outside, and a box across the meridian of 180 degrees, whose west is above
/// its east, encloses nothing. Both operations add to `departure_airspaces` and
/// `destination_airspaces`; false after a fault of the file, and what was added stands.
namespace skerrand {

/// Walks the entries of a group, of which `group_offset` is the first, and reads its objects. An
/// entry of an unknown type ends the group.
bool Walk_Airspace_Group(std::int64_t group_offset);

/// Reads the object whose entry stands at `object_offset`. It adds an airspace for each bounding
/// box in it that encloses an airport; the records ahead of the first such box are passed over. A
/// record of an unknown type ends the object.
bool Read_Airspace_Object(std::int64_t object_offset);

}  // namespace skerrand
