#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "scenery/airport_info.h"

/// The taxi block of an airport: its points, parkings and paths, and their names.
namespace skerrand {

/// Reads the taxi block at `record`, with the size `size` behind its head, into the lists of the
/// airport, whose position and runways have to be read already. Each list that the block holds
/// replaces the airport's. `parking_label` is the label of the parking read last in this airport,
/// which stands in for one with an unknown code. False after a fault of the file; a list in which
/// it lies is left as it was.
bool Read_Taxi_Block(std::int64_t record, std::int32_t size, Airport_Info& airport,
                     std::string_view& parking_label);

/// A parking's name, such as "GATE A 12", from its packed value. `label` is the label of the
/// parking before it, empty for the first: it stands in for an unknown code, else it becomes the
/// new label.
std::string Parking_Name(std::int32_t packed, std::string_view& label);

/// Gives every path of the kind `Path_Taxiway` whose name is the decimal number of one of `names`
/// that name. The names are given one after the other, from the first to the last, so that a path
/// whose new name is itself the number of a later one is named again.
void Name_Taxiways(const std::vector<std::string>& names, std::vector<Taxi_Path>& paths);

}  // namespace skerrand
