#pragma once

#include <cstdint>

#include "scenery/airport_info.h"

/// The records of an airport block that hold a runway and its landing aids. `record` is the
/// position of the record in the BGL file in hand. Each operation answers false, with nothing
/// added, after a fault of the file.
namespace skerrand {

/// True headings of a runway, degrees. The reciprocal is half a turn less than the heading, not
/// brought back into the same range.
struct Runway_Headings {
    double heading_1 = 0;  ///< -180 to 180
    double heading_2 = 0;  ///< -360 to 0
};

/// Adds a runway and gives its headings. The drawn ends of a runway longer than 300 m lie 30 m
/// inside the real ones. A runway whose number is above 36, or whose designator is not one of the
/// five, takes both identifiers of the runway ahead of it, or none.
bool Read_Runway(std::int64_t record, Airport_Info& airport, Runway_Headings& headings);

/// Adds an ILS of the last runway of the airport, which has these headings; other aids are passed
/// over. The beam serves the end whose whole heading equals its course; without one it stands at
/// its transmitter.
bool Read_Aid(std::int64_t record, std::int32_t size, const Runway_Headings& headings,
              Airport_Info& airport);

}  // namespace skerrand
