#include "app/form6.h"

#include "chart/form4.h"

namespace skerrand::form6 {

namespace {

using platform::Control;
using enum platform::Control_Kind;

void Form_Load();
void Command1_Click();

/// A line of the credits.
constexpr Control Credit(const char* name, int top, const char* caption) {
    return {.name = name,
            .kind = Label,
            .in = "Frame1",
            .at = {240, top, 4335, 255},
            .caption = caption};
}

constexpr Control controls[] = {
    {.name = "Label1",
     .kind = Label,
     .at = {120, 120, 4815, 855},
     .caption = "SKERRAND VERSION 2.0",
     .font = {"MS Sans Serif", 18, true}},
    {.name = "Frame1", .kind = Frame, .at = {120, 1080, 4815, 3735}, .caption = "Credits"},
    Credit("Label2", 360, "A chart of the airport at hand, for pilots of FS2002."),
    Credit("Label3", 660, "On Linux: Qt 6, XCB and CUPS."),
    Credit("Label4", 960, "Tests and benchmarks: GoogleTest, Google Benchmark."),
    {.name = "Label6",
     .kind = Label,
     .in = "Frame1",
     .at = {240, 1320, 1455, 255},
     .caption = "Special Thanks To:"},
    {.name = "Text1",
     .kind = Text,
     .in = "Frame1",
     .at = {240, 1560, 4335, 735},
     .caption = "The Qt Project\r\n"
                "The X.Org developers\r\n"
                "OpenPrinting, for CUPS\r\n"
                "The authors of GoogleTest and Google Benchmark\r\n"
                "The Debian Project\r\n"
                "Robin A. Peel and contributors, for their airports",
     .multi_line = true},
    {.name = "Label5",
     .kind = Label,
     .in = "Frame1",
     .at = {240, 2400, 4335, 1215},
     .caption = "The airports of the demonstration world come from the free airport database of "
                "Robin A. Peel and contributors (GNU GPL), its magnetic variation from the World "
                "Magnetic Model 2015; its airspaces are made up. None of it is for navigation."},
    {.name = "Command1",
     .kind = Button,
     .at = {3360, 4920, 1575, 495},
     .caption = "Ok",
     .handler = Command1_Click},
};

}  // namespace

// However it is closed, the chart goes on.
constexpr platform::Window window = {.name = "Form6",
                                     .caption = "About Skerrand v2.0",
                                     .client_width = 5115,
                                     .client_height = 5550,
                                     .controls = controls,
                                     .frame = platform::Frame_Style::Dialog,
                                     .load = Form_Load,
                                     .unload = form4::Start_Timers};

namespace {

void Form_Load() {
    form4::Place_Dialog(window);
}

void Command1_Click() {
    platform::Unload(window);
}

}  // namespace

}  // namespace skerrand::form6
