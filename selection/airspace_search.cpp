#include "selection/airspace_search.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "app/messages.h"
#include "app/settings.h"
#include "chart/current_chart.h"
#include "platform/controls.h"
#include "platform/files.h"
#include "scenery/bgl_reader.h"
#include "scenery/bgl_walk.h"
#include "scenery/tables.h"
#include "selection/form3.h"
#include "selection/picks.h"

namespace skerrand {

namespace {

// Feet; an airspace with a limit above the last of them is of class B.
constexpr std::int32_t Class_D_Top = 2500;
constexpr std::int32_t Class_C_Top = 4000;

constexpr std::int32_t Tracon_Top = 10000;  // feet
constexpr std::int32_t Tracon_Radius = 20;  // nautical miles

/// The listed files that could not be read.
struct Unread_Files {
    int count = 0;
    std::string first;
};

bool Has_Magic() {
    return bgl_bytes.size() >= Magic_Offset + Bgl_Magic.size() &&
           std::equal(Bgl_Magic.begin(), Bgl_Magic.end(), bgl_bytes.begin() + Magic_Offset);
}

void Show_Progress(int done, int files) {
    platform::Set_Progress(form3::ProgressBar1, {.value = done, .minimum = 0, .maximum = files});
    platform::Repaint(form3::ProgressBar1);
}

/// One file after the other goes through the same buffer.
Unread_Files Search_Files() {
    Unread_Files unread;
    const int files = static_cast<int>(airspace_files.size());
    Show_Progress(0, files);
    for (int done = 0; done < files; ++done) {
        current_file = airspace_files[static_cast<std::size_t>(done)];
        if (!platform::Read_File(current_file, bgl_bytes, 1)) {
            if (unread.count++ == 0) unread.first = current_file;
        } else if (Has_Magic()) {
            Walk_Bgl();
        }
        Show_Progress(done + 1, files);
        platform::Repaint(form3::window);
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

void Tell_Unread(const Unread_Files& unread, std::size_t listed) {
    Show_Message(std::to_string(unread.count) + " of the " + std::to_string(listed) +
                     " scenery files with airspaces cannot be read, so the charts lack their "
                     "airspaces. The first of them is\r\n" +
                     unread.first + "\r\nIf your scenery has changed, end this program, delete " +
                     Settings_File + ", " + Airports_File + " and " + Airspaces_File + " in " +
                     app_path + " and start it again; it will then create its database anew.",
                 platform::Icon::Exclamation);
}

}  // namespace

void Search_Airspaces() {
    for (auto* table : {&departure_airspaces, &destination_airspaces, &current_airspaces}) {
        std::vector<Airspace_Info>().swap(*table);
    }
    const std::size_t listed = airspace_files.size();
    const Unread_Files unread = Search_Files();
    Release_Airspace_Files();
    Complete(departure_airspaces, departure_airport);
    Complete(destination_airspaces, destination_airport);
    if (unread.count > 0) Tell_Unread(unread, listed);
}

}  // namespace skerrand
