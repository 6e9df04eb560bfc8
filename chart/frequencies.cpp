#include "chart/frequencies.h"

#include <string>

#include "app/messages.h"
#include "chart/current_chart.h"

namespace skerrand::form4 {

void show_all_cfreq_Click() {
    const Airport_Info& airport = current_airport;
    std::string text = "Airport: " + airport.airport_name;
    text += "\r\nICAO_ID: " + airport.icao_id;
    text += "\r\nATIS Frequency: " + airport.atis_freq;
    text += "\r\nClearance Frequency: " + airport.clearance_freq;
    text += "\r\nGround Frequency: " + airport.ground_freq;
    text += "\r\nDeparture Frequency: " + airport.departure_freq;
    text += "\r\nApproach Frequency: " + airport.approach_freq;
    text += "\r\nCenter Frequency: " + airport.center_freq;
    Show_Message(text, platform::Icon::Information);
}

}  // namespace skerrand::form4
