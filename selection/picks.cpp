#include "selection/picks.h"

#include "scenery/database.h"

namespace skerrand {

Airport_Info departure_airport;
Airport_Info destination_airport;
std::vector<Airspace_Info> departure_airspaces;
std::vector<Airspace_Info> destination_airspaces;

std::string List_Entry(const Airport_Info& airport) {
    return airport.airport_name + " (" + airport.icao_id + ")";
}

void Take_Picks(std::string_view departure, std::string_view destination) {
    for (const Airport_Info& airport : airport_table) {
        const std::string entry = List_Entry(airport);
        if (entry == departure) departure_airport = airport;
        if (entry == destination) destination_airport = airport;
    }
    Release_Airport_Table();
}

}  // namespace skerrand
