#pragma once

namespace bench {

/// Registers the benchmarks of the chart, whose names start with "chart/".
void Add_Chart_Benchmarks();

/// Those in the working folder, as at a start.
void Load_Databases();

/// The chart of the largest airport of the demonstration world, by the databases in the working
/// folder, 1920 x 1080 pixels. To be the program's start.
void Show_Chart();

}  // namespace bench
