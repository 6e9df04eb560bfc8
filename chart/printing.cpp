#include "chart/printing.h"

#include <algorithm>
#include <string>

#include "chart/current_chart.h"
#include "chart/draw_chart.h"
#include "chart/form4.h"
#include "platform/message_box.h"
#include "platform/printer.h"
#include "selection/rounding.h"

namespace skerrand::form4 {

namespace {

void Print_Frame(platform::Device_Context* device) {
    const platform::Size area = platform::Printable_Size();
    platform::Rectangle(device, 0, 0, Round_To_Long(area.width), Round_To_Long(area.height));
}

/// Two lines in a white box, which hides what was printed below it.
void Print_Title(platform::Device_Context* device) {
    platform::Set_Text_Cursor(0, 0);
    const std::string title_1 = "Skerrand v2.0";
    const std::string title_2 =
        current_airport.airport_name + "  (" + current_airport.icao_id + ")";
    const platform::Size size_1 = platform::Text_Size(title_1);
    const platform::Size size_2 = platform::Text_Size(title_2);
    const double box_width = std::max(size_1.width, size_2.width);
    const double box_height = size_1.height + size_2.height;

    platform::Set_Pen_Colour(device, platform::Colour_Black);
    platform::Set_Fill_Colour(device, platform::Colour_White);
    platform::Set_Fill_Style(device, platform::Fill_Style::Solid);
    platform::Rectangle(device, 0, 0, Round_To_Long(box_width), Round_To_Long(box_height));
    platform::Print_Line(title_1);
    platform::Print_Line(title_2);
}

/// False if the printer does not take the document.
bool Print_Page() {
    if (!platform::Start_Page(current_airport.icao_id + " Chart")) return false;
    platform::Device_Context* const device = chart_view.printer.device;
    Set_Outline(device, 1, platform::Colour_Black);
    Print_Frame(device);
    Draw_Chart(chart_view.printer);
    Print_Title(device);
    return platform::End_Document();
}

}  // namespace

bool Set_Up_Printer() {
    if (!platform::Open_Printer()) return false;
    const platform::Size sheet = platform::Paper_Size();
    chart_view.printer = {platform::Printer_Device(),
                          Round_To_Long(platform::Printer_Twips_To_Pixels_X(sheet.width)),
                          Round_To_Long(platform::Printer_Twips_To_Pixels_Y(sheet.height))};
    return true;
}

void print_cht1_Click() {
    Stop_Timers();
    if (!Print_Page()) {
        platform::Message_Box("Error - Maybe the printer is not ready or propertly connected.",
                              platform::Icon::Critical);
        return;
    }
    platform::Minimise(window);
    Start_Timers();
}

}  // namespace skerrand::form4
