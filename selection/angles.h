#pragma once

/// Constants of the spherical calculations. Pi and two pi are these decimals, not the full values:
/// every stored position and drawn pixel follows from them.
namespace skerrand {

inline constexpr double Pi = 3.14159265358979;
inline constexpr double Two_Pi = 6.28318530717958;
inline constexpr double Degrees_To_Radians = Pi / 180;
inline constexpr double Radians_To_Degrees = 180 / Pi;
/// A nautical mile is one minute of arc.
inline constexpr double Radians_To_Miles = 10800 / Pi;
inline constexpr double Miles_To_Radians = Pi / 10800;

}  // namespace skerrand
