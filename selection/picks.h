#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "scenery/airport_info.h"
#include "scenery/airspace_info.h"

/// The two airports of the flight with their airspaces. They outlive the picker and its table, and
/// stand until the next pick replaces them.
namespace skerrand {

extern Airport_Info departure_airport;
extern Airport_Info destination_airport;

extern std::vector<Airspace_Info> departure_airspaces;
extern std::vector<Airspace_Info> destination_airspaces;

/// The text by which the lists name an airport: its name, then its ICAO id in brackets.
std::string List_Entry(const Airport_Info& airport);

/// Copies the airports with these list entries out of `airport_table`, and releases it. Nothing
/// distinguishes equal entries, and of those the last one counts; what matches none stays as it
/// was.
void Take_Picks(std::string_view departure, std::string_view destination);

}  // namespace skerrand
