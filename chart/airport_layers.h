#pragma once

#include "chart/chart_view.h"

/// The layers that show the airport itself. Each walks its table of `current_airport` and paints
/// with the pen width and style that it finds; it leaves the pen and fill colours as its last step
/// set them.
namespace skerrand {

/// Filled discs of one hundredth of the target's width, at every zoom, with their names.
void Draw_Parkings(const Chart_Target& target);

/// Lines with the taxiways' names at their middles.
void Draw_Taxiways(const Chart_Target& target);

/// One line a runway, with ids and magnetic headings at both ends; also those outside the view.
void Draw_Runways(const Chart_Target& target);

/// Triangles of 1800 feet and 10 degrees out along the approach, with the frequency at their tips.
void Draw_ILS(const Chart_Target& target);

void Draw_Airport_Name(const Chart_Target& target);

}  // namespace skerrand
