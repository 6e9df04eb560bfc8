#pragma once

namespace skerrand::form4 {

/// Shows the radio frequencies of the airport on the chart in a message box, a line each; one that
/// the airport does not have is an empty place.
void show_all_cfreq_Click();

}  // namespace skerrand::form4
