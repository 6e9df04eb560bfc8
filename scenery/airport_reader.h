#pragma once

#include <cstdint>

#include "scenery/airport_info.h"

/// The airports of the BGL file in hand. Each operation answers false after a fault of the file;
/// what was read ahead of it stands. The grid of the magnetic variation has to be loaded.
namespace skerrand {

/// Walks the lists of airports from `start` on, and adds the airports to `airport_table` unless the
/// database is ready. A record of an unknown type ends the section.
bool Walk_Airport_Section(std::int64_t start);

/// Reads the airport block at `block_offset` into an airport that is empty but for its name. A
/// record of an unknown type ends the block.
///
/// The drawn ends of a runway longer than 300 m lie 30 m inside the real ones. A runway whose
/// number is above 36, or whose designator is not one of the five, takes both identifiers of the
/// runway ahead of it, or none. An ILS counts only behind its runway; its beam serves the end whose
/// whole heading equals its course, and without one it stands at its transmitter.
bool Read_Airport(std::int64_t block_offset, Airport_Info& airport);

}  // namespace skerrand
