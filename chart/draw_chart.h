#pragma once

#include "chart/chart_view.h"

/// The picture of the chart: the order of its layers, and those that show the airport itself and
/// the aircraft.
namespace skerrand {

/// Paints all layers that the zoom and the display flags call for on a target, the lowest first.
/// Leaves the pen solid and 1 wide.
void Draw_Chart(const Chart_Target& target);

/// The simulator's aircraft on top of what stands there: a disc of one hundredth of the target's
/// width, a line of 500 feet along its heading, and its words. Nothing without a link or outside
/// the view. The pen is that of `Draw_Chart`, which comes before it.
void Draw_Aircraft(const Chart_Target& target);

/// A solid pen of a width in pixels and a colour; the fill black and hollow, so that it shows
/// nowhere.
void Set_Outline(platform::Device_Context* device, int width, platform::Colour pen);

}  // namespace skerrand
