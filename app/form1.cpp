#include "app/form1.h"

#include "app/startup.h"
#include "platform/timers.h"

namespace skerrand::form1 {

namespace {

using platform::Control;
using enum platform::Control_Kind;

void Timer1_Timer();

constexpr Control controls[] = {
    // 320 by 240 pixels at 15 twips each; the window cuts its last columns off.
    {.name = "Picture1", .kind = Picture, .at = {0, 0, 4800, 3600}},
    {.name = "Label1",
     .kind = Label,
     .at = {120, 120, 4335, 855},
     .caption = "SKERRAND VERSION 2.0",
     .transparent = true,
     .font = {"MS Sans Serif", 18, true}},
    {.name = "Timer1", .kind = Timer, .handler = Timer1_Timer, .interval = 3000},
};

}  // namespace

constexpr platform::Window window = {.name = "Form1",
                                     .caption = "Skerrand",
                                     .client_width = 4680,
                                     .client_height = 3555,
                                     .controls = controls,
                                     .frame = platform::Frame_Style::Splash};

namespace {

constexpr auto Timer1 = platform::Find_Control(window, "Timer1");

void Timer1_Timer() {
    platform::Stop_Timer(Timer1);
    Decide_Start();
}

}  // namespace

}  // namespace skerrand::form1
