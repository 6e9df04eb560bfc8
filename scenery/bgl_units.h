#pragma once

#include <cstdint>
#include <string>

/// What the stored numbers of BGL records mean.
namespace skerrand {

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
