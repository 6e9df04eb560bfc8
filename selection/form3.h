#pragma once

#include "platform/window.h"

/// The picker: two lists of all airports, filled by the load or the scan, and the step from two
/// picks to a chart.
namespace skerrand::form3 {

extern const platform::Window window;

extern const platform::Control_Ref Combo1;  ///< departure list
extern const platform::Control_Ref Combo2;  ///< destination list
extern const platform::Control_Ref Drive1;  ///< the drives, for the scenery catalogue alone
extern const platform::Control_Ref ProgressBar1;
extern const platform::Control_Ref Read_Sceneries_Paths;
extern const platform::Control_Ref Scan_Bgls;

/// The text of the status line when the window stands idle and ready; closing it then ends the
/// program.
inline constexpr const char* Done = "Done";

/// Shows a text in the status line at once, since the steps hold the thread.
void Set_Status(const char* text);

/// Enables or disables both lists and both buttons.
void Set_Input_Enabled(bool enabled);

}  // namespace skerrand::form3
