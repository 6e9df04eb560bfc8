#include "chart/aircraft_layer.h"

#include "chart/chart_view.h"
#include "chart/colours.h"
#include "chart/current_chart.h"
#include "chart/layer_pen.h"
#include "platform/drawing.h"
#include "selection/geodesy.h"

namespace skerrand {

namespace {

constexpr int Heading_Line_Feet = 500;
constexpr float Radius_Percent = 0.8F;  // a length goes by whole percents, so this is 1

}  // namespace

void Draw_Aircraft() {
    if (!chart_view.link_open || !In_View(aircraft_lat, aircraft_lon)) return;

    const Pixel_Point centre = Geo_To_Screen(aircraft_lat, aircraft_lon);
    const Fix_Point ahead =
        Destination_Feet(aircraft_lat, aircraft_lon, aircraft_heading, Heading_Line_Feet);
    const std::int32_t radius = Screen_Percent(Radius_Percent);

    platform::Device_Context* const device = Screen_Target().device;
    Set_Solid(device, Green);
    platform::Ellipse(device, centre.x - radius, centre.y + radius, centre.x + radius,
                      centre.y - radius);
    Draw_Line(device, centre, Geo_To_Screen(ahead.lat, ahead.lon));
    platform::TextOutA(device, centre.x, centre.y, "Your Plane");

    platform::Set_Pen_Width(device, 1);
    Set_Hollow(device, Green);
}

}  // namespace skerrand
