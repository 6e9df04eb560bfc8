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

void Reset_Display_Flags() {
    for (bool* flag :
         {&follow_aircraft, &show_ils, &show_ils_frequency, &show_taxiways, &show_taxiway_ids,
          &show_gates, &show_airspace, &show_airport_name, &show_runway_ids, &show_runway_headings})
        *flag = true;
    altimeter_unit = Unit_Inches;
}

std::string Active_Runway(const Airport_Info& airport) {
    std::string id;
    std::int32_t length = 0;
    for (const Runway_Info& runway : airport.runways) {
        if ((id.empty() && length == 0) || runway.length_ft > length) {
            id = runway.id_1;
            length = runway.length_ft;
        }
    }
    return id;
}

}  // namespace skerrand
