#pragma once

/// Printing of the chart: one page with a frame along the edge of what can be printed, the chart
/// over the whole sheet, and a title in the top left corner.
namespace skerrand::form4 {

/// Takes the default printer and the size of its sheet. False if no printer can be reached.
bool Set_Up_Printer();

/// Prints the chart as it stands, without the aircraft, and minimises the window. After a failure,
/// which a message tells, the chart stands still until it is resumed.
void print_cht1_Click();

}  // namespace skerrand::form4
