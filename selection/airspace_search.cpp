#include "selection/airspace_search.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "chart/current_chart.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_walk.h"
#include "scenery/database.h"
#include "selection/picks.h"

namespace skerrand {

namespace {

// Feet; an airspace with a limit above the last of them is of class B.
constexpr std::int32_t Class_D_Top = 2500;
constexpr std::int32_t Class_C_Top = 4000;

constexpr std::int32_t Tracon_Top = 10000;  // feet
constexpr std::int32_t Tracon_Radius = 20;  // nautical miles

/// One file after the other goes through the same buffer. A path of the list is in lower case, so
/// it stands for each file of that name in any case; those without airspaces cost just their
/// reading.
Unread_Files Search_Files(void (*show_progress)(int done, int files)) {
    Unread_Files unread;
    std::optional<std::string> folder;
    std::multimap<std::string, std::string> names;  // of the files in it, by their lower case
    const int files = static_cast<int>(airspace_files.size());
    show_progress(0, files);
    for (int done = 0; done < files; ++done) {
        const std::string& listed = airspace_files[static_cast<std::size_t>(done)];
        const std::size_t name = listed.find_last_of("\\/") + 1;
        if (folder != listed.substr(0, name)) {
            folder = listed.substr(0, name);
            names.clear();
            const auto found = platform::File_Names(*folder, Bgl_Ending);
            for (const std::string& file : found.value_or(std::vector<std::string>()))
                names.emplace(platform::Lower_Case(file), file);
        }
        const auto [first, last] = names.equal_range(platform::Lower_Case(listed.substr(name)));
        // A list that another hand wrote may name what no listing of scenery shows.
        bool sound = first != last || Walk_File(listed);
        for (auto file = first; file != last; ++file)
            sound = Walk_File(*folder + file->second) && sound;
        if (!sound && unread.count++ == 0) unread.first = listed;
        show_progress(done + 1, files);
    }
    platform::Bytes().swap(bgl_bytes);
    return unread;
}

std::string_view Label_Of(const Airspace_Info& airspace) {
    const auto lies_below = [&airspace](std::int32_t top) {
        return airspace.low_limit <= top && airspace.high_limit <= top;
    };
    if (!airspace.freq_text.empty() && !airspace.facility_text.empty()) return Label_Center;
    if (lies_below(Class_D_Top)) return Label_Class_D;
    if (lies_below(Class_C_Top)) return Label_Class_C;
    return Label_Class_B;
}

/// No scenery file holds the area that departure and approach control; a disc stands for it.
Airspace_Info Tracon_Disc(const Airport_Info& airport) {
    Airspace_Info disc;
    disc.center_lat = airport.lat;
    disc.center_lon = airport.lon;
    disc.class_label = Label_Tracon;
    disc.high_limit = Tracon_Top;
    for (const std::string& freq : {airport.departure_freq, airport.approach_freq}) {
        if (!freq.empty()) disc.freq_text += freq + " Mhz  ";
    }
    disc.boundary = {
        {.kind = Boundary_Kind::Point_Center, .lat = airport.lat, .lon = airport.lon},
        {.kind = Boundary_Kind::Point_Circle, .radius = Tracon_Radius},
    };
    return disc;
}

void Complete(std::vector<Airspace_Info>& airspaces, const Airport_Info& airport) {
    for (Airspace_Info& airspace : airspaces)
        airspace.class_label = Label_Of(airspace);
    if (!airport.departure_freq.empty() || !airport.approach_freq.empty()) {
        airspaces.push_back(Tracon_Disc(airport));
    }
}

}  // namespace

Unread_Files Search_Airspaces(void (*show_progress)(int done, int files)) {
    for (auto* table : {&departure_airspaces, &destination_airspaces, &current_airspaces}) {
        std::vector<Airspace_Info>().swap(*table);
    }
    const Unread_Files unread = Search_Files(show_progress);
    Release_Airspace_Files();
    Complete(departure_airspaces, departure_airport);
    Complete(destination_airspaces, destination_airport);
    return unread;
}

}  // namespace skerrand
