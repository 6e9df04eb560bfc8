#pragma once

#include <span>
#include <string>
#include <string_view>

#include "scenery/airport_info.h"

namespace skerrand {

/// The text by which the lists name an airport: its name, then its ICAO id in brackets.
std::string List_Entry(const Airport_Info& airport);

/// The places of two list entries in the table; nothing distinguishes equal entries, and of those
/// the last one counts. -1 where no airport has that text.
struct Found_Picks {
    std::ptrdiff_t departure = -1;
    std::ptrdiff_t destination = -1;
};
Found_Picks Find_Picks(std::span<const Airport_Info> table, std::string_view departure,
                       std::string_view destination);

/// The click of "GET AIRPORT": copies the two picks out of the table, releases it and goes on to
/// the chart. Does nothing unless an entry is picked in both lists.
void Get_Airports();

}  // namespace skerrand
