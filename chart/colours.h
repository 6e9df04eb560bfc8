#pragma once

#include "platform/colour.h"

/// The colours of the chart.
namespace skerrand {

inline constexpr platform::Colour Green{0, 192, 0};       ///< runways, the aircraft
inline constexpr platform::Colour Yellow{255, 255, 0};    ///< ILS
inline constexpr platform::Colour Brown{128, 64, 64};     ///< parkings
inline constexpr platform::Colour Silver{192, 192, 192};  ///< taxiways
inline constexpr platform::Colour Black{0, 0, 0};         ///< texts
inline constexpr platform::Colour White{255, 255, 255};
inline constexpr platform::Colour Dark_Red{192, 0, 0};  ///< the word of the paused refresh

}  // namespace skerrand
