#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/files.h"

/// The BGL file in hand, the question whether it may be read at a place, and the primitive readers.
///
/// Positions count from the start of the file and are 64 bits wide, so that sums of the 32-bit
/// numbers of a file never overflow. A reading operation first asks `Can_Read` for the bytes that
/// it is about to read; a false answer is a fault of the file, which ends the walk of that whole
/// file by a false result through all its callers. The primitives themselves check nothing.
namespace skerrand {

/// A file of n bytes and one spare zero byte behind it: positions 0 to n may be read.
extern platform::Bytes bgl_bytes;

/// Path of that file, in lower case.
extern std::string current_file;

/// Whether all of `count` bytes from `pos` on lie in the image. No bytes lie anywhere.
inline bool In_Image(std::int64_t pos, std::int64_t count) {
    return count <= 0 || (pos >= 0 && pos <= static_cast<std::int64_t>(bgl_bytes.size()) - count);
}

/// A walk may decode a generous multiple of the file's size, so that records that overlap, or all
/// point at one huge block, cost no more than a sound file of some size. Bytes that are read and
/// bytes that tables grow by both count. Without a start nothing is counted.
void Start_Allowance();
void End_Allowance();

/// Takes `bytes` (0 or less: nothing) from the allowance; false once it is used up.
bool Charge(std::int64_t bytes);

/// Whether the bytes lie in the image and the walk may still decode so many.
inline bool Can_Read(std::int64_t pos, std::int64_t count) {
    return In_Image(pos, count) && Charge(count);
}

/// Moves a position over a record with the size `size` behind the 8 bytes of its head. False, with
/// the position as it was, if that does not lead forward.
inline bool Step_Over(std::int64_t& pos, std::int32_t size) {
    const std::int64_t step = std::int64_t{size} + 8;
    if (step <= 0) return false;
    pos += step;
    return true;
}

inline std::uint8_t Read_Byte(std::int64_t pos) {
    assert(In_Image(pos, 1));
    return bgl_bytes[static_cast<std::size_t>(pos)];
}

/// Signed, little-endian.
inline std::int16_t Read_Word(std::int64_t pos) {
    return static_cast<std::int16_t>(Read_Byte(pos) | Read_Byte(pos + 1) << 8);
}

/// Signed, little-endian.
inline std::int32_t Read_Long(std::int64_t pos) {
    assert(In_Image(pos, 4));
    const std::uint8_t* byte = bgl_bytes.data() + pos;
    return static_cast<std::int32_t>(std::uint32_t{byte[0]} | std::uint32_t{byte[1]} << 8 |
                                     std::uint32_t{byte[2]} << 16 | std::uint32_t{byte[3]} << 24);
}

/// The bytes but those that are 0, which are left out wherever they stand. Empty for a length of 0
/// or less.
std::string Read_Text(std::int64_t pos, std::int64_t length);

/// The longest text that the database can hold, in bytes.
inline constexpr std::int64_t Longest_Text = 65535;

/// `Read_Text`, cut to that length.
std::string Read_Name(std::int64_t pos, std::int64_t length);

/// The value of an IEEE 754 single. Subnormal numbers are read as if they had the leading 1 of the
/// others (so that negative zero is -2^-127, while positive zero is 0); infinities and what is no
/// number give 0.
double Bits_To_Single(std::int32_t bits);

// What the stored numbers of records mean.

/// Degrees, north positive, from metres of a meridian whose quadrant counts 10001750.
inline double Latitude_Degrees(std::int32_t stored) {
    return stored * 90.0 / 10001750.0;
}

/// Degrees, east positive, from 2^32 parts of the circle.
inline double Longitude_Degrees(std::int32_t stored) {
    return stored * 360.0 / 4294967296.0;
}

/// Degrees, -180 to 180, of a heading in 2^32 parts of the circle. `turn` is added to the stored
/// angle in 65536 parts of the circle: -32768 gives the reciprocal, -360 to 0.
inline double Heading_Degrees(std::int32_t stored, double turn = 0) {
    return (stored / 65536.0 + turn) * 360 / 65536;
}

/// MHz in shortest decimal form ("121.3", "118") of a frequency in binary-coded decimal, in units
/// of 100 Hz. Empty if a digit is above 9.
std::string Frequency_Text(std::int32_t code);

}  // namespace skerrand
