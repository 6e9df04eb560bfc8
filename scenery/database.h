#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/files.h"
#include "scenery/airport_info.h"

/// The two database files of the program: the airport table, and the list of the BGL files that
/// hold airspaces. Both are runs of records without a header; how many they hold is told by the
/// counts that the settings file keeps. Behind the records in use each file carries one empty one.
namespace skerrand {

/// The bytes of the file that holds these airports. Texts are cut to 65535 bytes.
platform::Bytes Airport_Table_Bytes(std::span<const Airport_Info> airports);

/// Reads `count` airports and the record behind them from the bytes of the file. The last record
/// may be absent if the bytes end right where it would start, so that a count that is one too high
/// is not noticed.
///
/// False, with `airports` empty, for a negative count, or if bytes follow the last record, a record
/// reaches beyond the bytes, an array's size does not fit its count, or a coordinate is no finite
/// number.
bool Parse_Airport_Table(std::span<const std::uint8_t> bytes, std::int32_t count,
                         std::vector<Airport_Info>& airports);

/// The same for the list of files with airspaces, whose records are mere texts.
platform::Bytes Airspace_List_Bytes(std::span<const std::string> files);
bool Parse_Airspace_List(std::span<const std::uint8_t> bytes, std::int32_t count,
                         std::vector<std::string>& files);

/// Write `airport_table` and `airspace_files` to their files in the working folder. They answer an
/// empty text or the reason of the failure, after which the old file, if any, stands.
std::string Write_Airport_Table();
std::string Write_Airspace_List();

/// Read `airport_table` and `airspace_files` from their files, as many records as `airport_count`
/// and `airspace_file_count` say. False, with the table empty and the count as it was, if the file
/// cannot be read or does not read back whole.
bool Read_Airport_Table();
bool Read_Airspace_List();

}  // namespace skerrand
