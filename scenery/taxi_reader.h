#pragma once

#include <cstdint>
#include <string_view>

#include "scenery/airport_info.h"

namespace skerrand {

/// Reads the taxi block at `record`, with the size `size` behind its head, into the lists of the
/// airport, whose position and runways have to be read already. Each list that the block holds
/// replaces the airport's. `parking_label` is the label of the parking read last in this airport,
/// which stands in for one with an unknown code. False after a fault of the file; a list in which
/// it lies is left as it was.
bool Read_Taxi_Block(std::int64_t record, std::int32_t size, Airport_Info& airport,
                     std::string_view& parking_label);

}  // namespace skerrand
