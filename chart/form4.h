#pragma once

#include "platform/window.h"

/// The chart window: always on top, its whole client area the chart of the current airport.
///
/// Whether `Chart_Refresher` runs is the gate for zoom, centre, click and switch: a pause, an open
/// dialog and a minimised window shut them all by stopping it.
namespace skerrand::form4 {

extern const platform::Window window;

extern const platform::Control_Ref Label1;  ///< the altimeter setting
extern const platform::Control_Ref Label4;  ///< the word of the paused refresh
extern const platform::Control_Ref Chart_Refresher;

/// Handlers that the key poll calls too.
void Command2_Click();        ///< "+": one zoom step in, and redraw
void Command4_Click();        ///< "-": one zoom step out, and redraw
void dp_airpt_chrt_Click();   ///< the departure airport's chart
void dst_airpt_chrt_Click();  ///< the destination airport's chart

/// Moves the view's centre to a place in degrees and redraws. Leaves both timers running.
void Center_Airport(double airpt_loc_x, double airpt_loc_y);

/// Erases the window and paints chart and aircraft.
void Redraw();

/// The refresh first, then the key poll.
void Stop_Timers();
void Start_Timers();

/// Puts a dialog of the chart above all windows, the chart among them, in the screen's top left
/// corner. To be called in its load.
void Place_Dialog(const platform::Window& dialog);

}  // namespace skerrand::form4
