#pragma once

#include <string>
#include <vector>

/// The magnetic variation of the world, degrees, east positive.
namespace world {

inline constexpr int Coarse_Step = 5;                      ///< degrees
inline constexpr int Coarse_Rows = 180 / Coarse_Step + 1;  ///< latitude -90 to 90
inline constexpr int Coarse_Columns = 360 / Coarse_Step;   ///< longitude 0 to 355 east

/// Values by row and column: [row * Coarse_Columns + column].
using Coarse_Grid = std::vector<double>;

/// Reads a text of numbers, row by row, with comment lines starting with "#". Answers an empty
/// text or what is wrong.
std::string Parse_Magnetic_Grid(const std::string& text, Coarse_Grid& grid);

/// The variation at a whole degree (latitude -90 to 90, longitude 0 to 359), between its four
/// neighbours of the grid; -180 to 180. Between 170 and -170 it goes through 180.
double Variation_At(const Coarse_Grid& grid, int lat, int lon);

}  // namespace world
