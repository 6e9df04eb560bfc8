#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// Puts scenery (BGL) files together in memory. All numbers are little-endian. A record is a type,
/// the count of the bytes behind the first 8, and those bytes; readers step from record to record
/// by that count and stop at a type that they do not know.
namespace world {

using Bytes = std::vector<std::uint8_t>;

void Put_Word(Bytes& bytes, std::int32_t value);  ///< the low 16 bits
void Put_Long(Bytes& bytes, std::int32_t value);
void Put_Single(Bytes& bytes, float value);  ///< IEEE 754, 32 bits
void Put_Text(Bytes& bytes, std::string_view text);
void Put_Zeros(Bytes& bytes, std::size_t count);

/// Overwrites the four bytes at `place`, which has to lie inside.
void Set_Long(Bytes& bytes, std::size_t place, std::int32_t value);

/// Starts a record and answers its place, to be given to `End_Record` behind its last byte.
/// Records may stand inside records.
std::size_t Begin_Record(Bytes& bytes, std::int32_t type);
void End_Record(Bytes& bytes, std::size_t record);

/// A record of a type that no reader knows: ends the chain that it stands in.
void Put_Chain_End(Bytes& bytes);

/// A coordinate as it stands in records: four bytes of fraction, left 0 here, then the whole units
/// (`Scaled_Latitude`, `Scaled_Longitude`).
void Put_Latitude(Bytes& bytes, double degrees);
void Put_Longitude(Bytes& bytes, double degrees);

/// 90 degrees are 10001750 units, about a metre each.
std::int32_t Scaled_Latitude(double degrees);

/// A whole turn is 2^32 units; any number of turns is taken off, so that 180 reads as -180.
std::int32_t Scaled_Longitude(double degrees);

/// An angle of any sign as 2^32 units to the turn, read as -180 to 180.
std::int32_t Scaled_Angle(double degrees);

/// A frequency in units of 100 Hz as binary-coded decimal: 1213000 gives 0x01213000.
std::int32_t Coded_Frequency(std::int32_t frequency);

/// Sections that a file's header points to, by the place of their offset in the header.
enum class Section : std::size_t { Airports = 156, Airspaces = 164 };

/// An empty file: the header with its magic and no section yet. Fill it with `Begin_Section` and
/// the section's records.
Bytes New_Bgl_File();

/// Lets the header point to the end of what is written so far.
void Begin_Section(Bytes& bytes, Section section);

}  // namespace world
