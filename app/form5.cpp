#include "app/form5.h"

#include "chart/current_chart.h"
#include "chart/form4.h"
#include "platform/controls.h"

namespace skerrand::form5 {

namespace {

using platform::Control;
using platform::Control_Ref;
using platform::Find_Control;
using enum platform::Control_Kind;

void Form_Load();
void Command1_Click();
void Option1_Click();
void Option2_Click();

/// The click of the check box of that number.
template <int Number>
void Check_Click();

/// A check box of the first frame.
template <int Number>
constexpr Control Box(const char* name, platform::Box at, const char* caption) {
    return {.name = name,
            .kind = Check,
            .in = "Frame1",
            .at = at,
            .caption = caption,
            .handler = Check_Click<Number>};
}

constexpr Control controls[] = {
    {.name = "Frame1", .kind = Frame, .at = {120, 120, 4575, 2295}, .caption = "Options"},
    Box<1>("Check1", {120, 360, 1815, 195}, "Display Taxiways IDs"),
    Box<3>("Check3", {2520, 360, 1095, 195}, "Display ILS"),
    Box<2>("Check2", {120, 720, 1575, 195}, "Display Taxiways"),
    Box<4>("Check4", {2520, 720, 1575, 195}, "Display Airspace"),
    Box<5>("Check5", {120, 1080, 2055, 255}, "Display Gates\\Parkings"),
    Box<6>("Check6", {2520, 1080, 1335, 255}, "Follow Aircraft"),
    Box<7>("Check7", {120, 1440, 1935, 195}, "Display ILS Frequency"),
    Box<8>("Check8", {2520, 1440, 1815, 255}, "Display Runways IDs"),
    Box<9>("Check9", {120, 1800, 2295, 255}, "Display Runways Headings"),
    Box<10>("Check10", {2520, 1800, 1935, 255}, "Display Airport's Name"),
    {.name = "Frame2",
     .kind = Frame,
     .at = {120, 2520, 4575, 855},
     .caption = "Altimeter Setting Units"},
    {.name = "Option1",
     .kind = Option,
     .in = "Frame2",
     .at = {240, 360, 855, 255},
     .caption = "Millibars",
     .handler = Option1_Click},
    {.name = "Option2",
     .kind = Option,
     .in = "Frame2",
     .at = {2040, 360, 1575, 255},
     .caption = "Inches of Mercury",
     .handler = Option2_Click},
    {.name = "Command1",
     .kind = Button,
     .at = {3360, 3600, 1335, 375},
     .caption = "Ok",
     .handler = Command1_Click},
};

}  // namespace

// However it is closed, the chart goes on.
constexpr platform::Window window = {.name = "Form5",
                                     .caption = "Options",
                                     .client_width = 4860,
                                     .client_height = 4095,
                                     .controls = controls,
                                     .frame = platform::Frame_Style::Dialog,
                                     .load = Form_Load,
                                     .unload = form4::Start_Timers};

namespace {

constexpr auto Option1 = Find_Control(window, "Option1");
constexpr auto Option2 = Find_Control(window, "Option2");

struct Choice {
    Control_Ref box;
    bool* flag;
};

/// By the numbers of the boxes, from 1.
constexpr Choice choices[] = {
    {Find_Control(window, "Check1"), &show_taxiway_ids},
    {Find_Control(window, "Check2"), &show_taxiways},
    {Find_Control(window, "Check3"), &show_ils},
    {Find_Control(window, "Check4"), &show_airspace},
    {Find_Control(window, "Check5"), &show_gates},
    {Find_Control(window, "Check6"), &follow_aircraft},
    {Find_Control(window, "Check7"), &show_ils_frequency},
    {Find_Control(window, "Check8"), &show_runway_ids},
    {Find_Control(window, "Check9"), &show_runway_headings},
    {Find_Control(window, "Check10"), &show_airport_name},
};

template <int Number>
void Check_Click() {
    const auto [box, flag] = choices[Number - 1];
    *flag = platform::Is_Checked(box);
}

void Option1_Click() {
    altimeter_unit = Unit_Millibars;
}

void Option2_Click() {
    altimeter_unit = Unit_Inches;
}

void Form_Load() {
    form4::Place_Dialog(window);
    for (const auto [box, flag] : choices)
        platform::Set_Checked(box, *flag);
    platform::Set_Checked(altimeter_unit == Unit_Millibars ? Option1 : Option2, true);
}

void Command1_Click() {
    platform::Unload(window);
}

}  // namespace

}  // namespace skerrand::form5
