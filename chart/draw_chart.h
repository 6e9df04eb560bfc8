#pragma once

#include "chart/chart_view.h"

namespace skerrand {

/// Paints all layers that the zoom and the display flags call for on a target, the lowest first.
/// Leaves the pen solid, 1 wide and green, the fill hollow and black.
void Draw_Chart(const Chart_Target& target);

/// The same on the chart window.
void Draw_Chart();

/// The same on the printer's page.
void Print_Chart();

}  // namespace skerrand
