#pragma once

#include <string_view>

#include "scenery/scan.h"

/// The search for the airspaces of the two picked airports, and the labels that it gives them.
namespace skerrand {

// What `class_label` of an airspace may hold.
inline constexpr std::string_view Label_Center = "ARTCC/FIR";
inline constexpr std::string_view Label_Class_B = "Airspace Class B";
inline constexpr std::string_view Label_Class_C = "Airspace Class C";
inline constexpr std::string_view Label_Class_D = "Airspace Class D";
inline constexpr std::string_view Label_Tracon = "TRACON (Departure/Approach)";

/// Fills `departure_airspaces` and `destination_airspaces` from the files of `airspace_files`,
/// labels them, and adds to each a disc round its airport if that has a departure or approach
/// frequency. The airspaces stand in the order of the list, then of the file, the disc last;
/// nothing removes repeats. Empties `current_airspaces`, and frees the list of files and the file
/// in hand.
///
/// Expects the picked airports, and the database ready in a run that is not the first, so that the
/// walk of a file searches. `show_progress` is called once ahead of the files and once behind each.
/// Files that are no BGL files are passed over; those that cannot be read are the answer.
Unread_Files Search_Airspaces(void (*show_progress)(int done, int files) = [](int, int) {});

}  // namespace skerrand
