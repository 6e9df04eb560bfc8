#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The simulator's grid of magnetic variation.
namespace skerrand {

inline constexpr std::size_t Grid_Latitudes = 181;   ///< whole degrees from -90 to 90
inline constexpr std::size_t Grid_Longitudes = 360;  ///< whole degrees from 0 to 359, eastwards
inline constexpr std::size_t Grid_Values = Grid_Latitudes * Grid_Longitudes;

/// Variations, east positive, in 360 / 65536 degrees, at (latitude + 90) + 181 * longitude.
/// Longitudes west of Greenwich count from 360 downwards; the spare last element, which longitude
/// 360 at the South Pole reaches, stays 0. All zeros until a grid is loaded.
extern std::array<std::int16_t, Grid_Values + 1> magnetic_table;

enum class Magdec_Result : std::uint8_t {
    Loaded,   ///< `magnetic_table` holds the file's grid
    No_Grid,  ///< the file says that it has none
    Missing,  ///< the file cannot be read
    Damaged,  ///< too short to tell where its grid is, or to hold it
};

/// Reads the file of that path, magdec.bgl, into `bgl_bytes` and its grid into `magnetic_table`.
/// Unless the answer is `Loaded`, the table stays as it was. The file has no magic to be tested.
Magdec_Result Load_Magdec(std::string_view path);

/// The same for a file that stands in `bgl_bytes` with its spare byte; never `Missing`.
Magdec_Result Take_Grid();

}  // namespace skerrand
