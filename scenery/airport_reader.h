#pragma once

#include <cstdint>

#include "scenery/airport_info.h"

namespace skerrand {

/// Reads the airport block at `block_offset` of the BGL file in hand into an airport that is empty
/// but for its name. The grid of the magnetic variation has to be loaded. A record of an unknown
/// type ends the block. False after a fault of the file; what was read ahead of it stands.
bool Read_Airport(std::int64_t block_offset, Airport_Info& airport);

}  // namespace skerrand
