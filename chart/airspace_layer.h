#pragma once

#include "chart/chart_view.h"

namespace skerrand {

/// Paints the outlines of `current_airspaces` of class B and C, in their order, dashed and hollow,
/// also where they lie outside the view. A circle of a radius below 1 gets the radius 1 in the
/// table. Leaves the pen dashed and 1 wide, the fill hollow.
void Draw_Airspaces(const Chart_Target& target);

}  // namespace skerrand
