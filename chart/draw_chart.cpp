#include "chart/draw_chart.h"

#include "chart/airport_layers.h"
#include "chart/airspace_layer.h"
#include "chart/colours.h"
#include "chart/current_chart.h"
#include "chart/layer_pen.h"
#include "platform/drawing.h"

namespace skerrand {

void Draw_Chart(const Chart_Target& target) {
    const bool airport_shows = chart_view.zoom_rate >= Zoom_Airport;
    const Airport_Info& airport = current_airport;

    Set_Pen(target.device, 4);
    Set_Hollow(target.device, Green);
    if (!airport_shows && show_airspace && !current_airspaces.empty()) Draw_Airspaces(target);

    Set_Pen(target.device, 2);
    if (airport_shows) {
        if (show_gates && !airport.parkings.empty()) Draw_Parkings(target);
        if (show_taxiways && !airport.taxi_paths.empty()) Draw_Taxiways(target);
        if (!airport.runways.empty()) Draw_Runways(target);
    }

    Set_Pen(target.device, 1);
    Set_Hollow(target.device, Green);
    if (airport_shows && show_ils && !airport.ils.empty()) Draw_ILS(target);
    if (show_airport_name) Draw_Airport_Name(target);

    // For whatever draws next.
    Set_Pen(target.device, 1);
    Set_Hollow(target.device, Green);
}

void Draw_Chart() {
    Draw_Chart(Screen_Target());
}

void Print_Chart() {
    Draw_Chart(Printer_Target());
}

}  // namespace skerrand
