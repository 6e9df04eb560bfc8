#pragma once

namespace skerrand {

/// Paints the simulator's aircraft on the chart window, on top of what stands there: a disc of one
/// hundredth of the window's width, a line of 500 feet along its heading, and its words. Nothing
/// without a link or outside the view. Leaves pen and fill as `Draw_Chart` does.
void Draw_Aircraft();

}  // namespace skerrand
