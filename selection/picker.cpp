#include "selection/picker.h"

#include <algorithm>
#include <cstdint>

#include "chart/form4.h"
#include "platform/controls.h"
#include "scenery/tables.h"
#include "selection/airspace_search.h"
#include "selection/form3.h"
#include "selection/picks.h"

namespace skerrand {

Airport_Info departure_airport;
Airport_Info destination_airport;
std::vector<Airspace_Info> departure_airspaces;
std::vector<Airspace_Info> destination_airspaces;

namespace {

constexpr std::string_view Id_Opening = " (";

/// Whether the airport's list entry is `text`, without building the entry. The id tells most
/// airports apart, and lies nearer in memory than a long name.
bool Is_Entry(const Airport_Info& airport, std::string_view text) {
    const std::size_t name = airport.airport_name.size();
    const std::size_t id = airport.icao_id.size();
    return text.size() == name + id + 3 && text.substr(name + 2, id) == airport.icao_id &&
           text.substr(name, 2) == Id_Opening && text.back() == ')' &&
           text.substr(0, name) == airport.airport_name;
}

constexpr std::size_t Longest_Told_Apart = 63;

/// A bit for each length that the name in one of the entries can have, up to a bracket that may be
/// the one ahead of the id; the last bit stands for all longer ones too. With it the pass over the
/// table needs no more of most airports than one number, and no branch that is hard to foretell.
std::uint64_t Possible_Name_Lengths(std::string_view departure, std::string_view destination) {
    std::uint64_t possible = 0;
    for (const std::string_view entry : {departure, destination}) {
        for (auto at = entry.find(Id_Opening); at != std::string_view::npos;
             at = entry.find(Id_Opening, at + 1)) {
            possible |= std::uint64_t{1} << std::min(at, Longest_Told_Apart);
        }
    }
    return possible;
}

void Take_Picks(int departure_index, int destination_index) {
    const Found_Picks found =
        Find_Picks(airport_table, platform::Entry_Text(form3::Combo1, departure_index),
                   platform::Entry_Text(form3::Combo2, destination_index));
    const auto take = [](std::ptrdiff_t place, Airport_Info& pick) {
        if (place >= 0) pick = airport_table[static_cast<std::size_t>(place)];
    };
    take(found.departure, departure_airport);
    take(found.destination, destination_airport);
}

}  // namespace

std::string List_Entry(const Airport_Info& airport) {
    std::string entry;
    entry.reserve(airport.airport_name.size() + airport.icao_id.size() + 3);
    return entry.append(airport.airport_name)
        .append(Id_Opening)
        .append(airport.icao_id)
        .append(")");
}

Found_Picks Find_Picks(std::span<const Airport_Info> table, std::string_view departure,
                       std::string_view destination) {
    const std::uint64_t possible = Possible_Name_Lengths(departure, destination);
    Found_Picks found;
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::size_t length = std::min(table[i].airport_name.size(), Longest_Told_Apart);
        if ((possible >> length & 1) == 0) continue;
        if (Is_Entry(table[i], departure)) found.departure = static_cast<std::ptrdiff_t>(i);
        if (Is_Entry(table[i], destination)) found.destination = static_cast<std::ptrdiff_t>(i);
    }
    return found;
}

void Get_Airports() {
    const int departure_index = platform::Selected_Index(form3::Combo1);
    const int destination_index = platform::Selected_Index(form3::Combo2);
    if (departure_index < 0 || destination_index < 0) return;

    form3::Set_Input_Enabled(false);
    form3::Set_Status("Getting Airports Info...");
    Take_Picks(departure_index, destination_index);
    Release_Airport_Table();

    form3::Set_Status("Looking for Airspaces...");
    Search_Airspaces();

    form3::Set_Status("Loading Chart Window...");
    platform::Show(form4::window);
    platform::Unload(form3::window);
}

}  // namespace skerrand
