#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "scenery/airport_info.h"
#include "scenery/airspace_info.h"

/// The chart on show: copies of one of the two picks, and what is shown of them.
namespace skerrand {

extern Airport_Info current_airport;
extern std::vector<Airspace_Info> current_airspaces;

/// Which layers and labels show. Every load of the chart window turns them all on; nothing stores
/// them.
extern bool follow_aircraft;  ///< recentre on the aircraft each second
extern bool show_ils;
extern bool show_ils_frequency;
extern bool show_taxiways;
extern bool show_taxiway_ids;
extern bool show_gates;
extern bool show_airspace;
extern bool show_airport_name;
extern bool show_runway_ids;
extern bool show_runway_headings;

inline constexpr std::uint8_t Unit_Millibars = 0;
inline constexpr std::uint8_t Unit_Inches = 1;  ///< of mercury
extern std::uint8_t altimeter_unit;

/// All flags on, the unit inches of mercury.
void Reset_Display_Flags();

/// First designator of the longest runway, the first of equals; empty without a runway.
std::string Active_Runway(const Airport_Info& airport);

}  // namespace skerrand
