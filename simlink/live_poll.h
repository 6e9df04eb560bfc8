#pragma once

#include <cstdint>

/// The live values of the simulator, and the chart's tick that asks for them.
namespace skerrand {

/// The aircraft at the last good poll: degrees, and a heading of -180 to 180.
extern double aircraft_lat;
extern double aircraft_lon;
extern std::int16_t aircraft_heading;

/// The altimeter setting as last shown, in the unit of `altimeter_unit`: whole millibars, or inches
/// of mercury to two decimals.
extern double altimeter_value;

/// The chart's tick, once a second: holds the window on top, reads the aircraft's position, heading
/// and altimeter setting while the link is open, and draws the chart anew, round the aircraft if it
/// is to be followed. A read that fails is told once and closes the link for good; what was read
/// ahead of it stands, and that tick draws nothing.
void Chart_Refresher_Timer();

/// Pauses the refresh, or resumes it.
void p_r_refresh_Click();

/// Shows or clears the word of the paused refresh over the chart.
void Show_Paused(bool paused);

}  // namespace skerrand
