#pragma once

#include <vector>

#include "platform/window.h"
#include "scenery/airport_info.h"
#include "scenery/airspace_info.h"

/// The chart window's load and unload, and the steps that the load shares with the commands.
namespace skerrand::form4 {

extern const platform::Control_Ref Label2;  ///< the active runway

void Form_Load();
void Form_Unload();
void Form_Resize();
void Form_MouseDown(platform::Mouse_Button button, float x, float y);

/// Puts an airport with its airspaces on the chart, and names it in label and caption.
void Take_Airport(const Airport_Info& airport, const std::vector<Airspace_Info>& airspaces);

/// Reads the window's outer size into the view, in pixels.
void Take_Screen_Size();

/// Makes mouse presses arrive in degrees of the present view.
void Take_User_Coordinates();

}  // namespace skerrand::form4
