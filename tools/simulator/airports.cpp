#include "tools/simulator/airports.h"

#include <algorithm>

#include "app/settings.h"
#include "platform/code_page.h"
#include "platform/program.h"
#include "scenery/database.h"
#include "tools/simulator/flight_plan.h"

namespace simulator {

bool Load_Airports() {
    skerrand::app_path = platform::Current_Folder();
    if (!skerrand::Load_Settings(skerrand::Own_File(skerrand::Settings_File))) return false;
    skerrand::airport_count = skerrand::settings.airport_count;
    return skerrand::Read_Airport_Table() && !skerrand::airport_table.empty();
}

const skerrand::Airport_Info* Find_Airport(const std::string& icao_id, std::string& fault) {
    const std::string wanted = platform::Upper_Case(icao_id);
    bool known = false;
    for (const skerrand::Airport_Info& airport : skerrand::airport_table) {
        if (!wanted.empty() && platform::Upper_Case(airport.icao_id) != wanted) continue;
        if (Can_Land(airport)) return &airport;
        known = true;
    }
    fault = known            ? wanted + " has no runway"
            : wanted.empty() ? "no airport has a runway"
                             : "the database has no airport " + wanted;
    return nullptr;
}

}  // namespace simulator
