#include "chart/current_chart.h"

namespace skerrand {

Airport_Info current_airport;
std::vector<Airspace_Info> current_airspaces;

bool follow_aircraft = false;
bool show_ils = false;
bool show_ils_frequency = false;
bool show_taxiways = false;
bool show_taxiway_ids = false;
bool show_gates = false;
bool show_airspace = false;
bool show_airport_name = false;
bool show_runway_ids = false;
bool show_runway_headings = false;
std::uint8_t altimeter_unit = Unit_Millibars;

double aircraft_lat = 0;
double aircraft_lon = 0;
std::int16_t aircraft_heading = 0;

void Reset_Display_Flags() {
    follow_aircraft = true;
    show_ils = true;
    show_ils_frequency = true;
    show_taxiways = true;
    show_taxiway_ids = true;
    show_gates = true;
    show_airspace = true;
    show_airport_name = true;
    show_runway_ids = true;
    show_runway_headings = true;
    altimeter_unit = Unit_Inches;
}

}  // namespace skerrand
