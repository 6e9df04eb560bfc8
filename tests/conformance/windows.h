#pragma once

#include <gtest/gtest.h>

#include "app/form1.h"
#include "app/form2.h"
#include "app/form5.h"
#include "app/form6.h"
#include "chart/form4.h"
#include "keys/form7.h"
#include "keys/form8.h"
#include "platform/controls.h"
#include "platform/timers.h"
#include "selection/form3.h"
#include "tests/conformance/driver.h"

/// The windows of the program, by their numbers from 1 on, for tests that are linked with it.
namespace skerrand {
inline constexpr const platform::Window* all_windows[] = {
    &form1::window, &form2::window, &form3::window, &form4::window,
    &form5::window, &form6::window, &form7::window, &form8::window};
}

/// The windows that the conformance test runs its small programs on, and what their handlers have
/// counted.
namespace conformance {

using namespace platform;

struct Counts {
    int loads, unloads, resizes, presses, moves;
    int fast_ticks, slow_ticks;
    int clicks, check_clicks, first_clicks, second_clicks, text_changes, double_clicks;
    Window_State state_at_resize;
    Mouse_Button button;
    float press_x, press_y;
};
inline Counts counts;

inline Handler on_fast_tick = nullptr;  ///< what a tick of `Fast` does besides counting

template <int Counts::*field>
void Count() {
    ++(counts.*field);
}

inline void Tick_Fast() {
    ++counts.fast_ticks;
    if (on_fast_tick != nullptr) on_fast_tick();
}

inline void Take_Press(Mouse_Button button, float x, float y) {
    ++counts.presses;
    counts.button = button;
    counts.press_x = x;
    counts.press_y = y;
}

void Text1_Change();
void Main_Resize();
void Load_Second();

// The controls keep to the right part of the window, so that the left part shows the drawing.
using enum Control_Kind;
inline constexpr Control main_controls[] = {
    {"Frame1", Frame, "", {4500, 0, 1500, 1500}},
    {"Option1", Option, "Frame1", {120, 300, 1200, 255}, "", Count<&Counts::first_clicks>},
    {"Option2", Option, "Frame1", {120, 600, 1200, 255}, "", Count<&Counts::second_clicks>},
    {"Option3", Option, "", {4500, 1600, 1200, 255}},
    {"Check1", Check, "", {4500, 1900, 1200, 255}, "", Count<&Counts::check_clicks>},
    {"Button1", Button, "", {4500, 2200, 1200, 300}, "", Count<&Counts::clicks>},
    {.name = "Combo1",
     .kind = Combo,
     .at = {4500, 2600, 1400, 315},
     .caption = "[]",
     .sorted = true},
    {"List1", List, "", {4500, 3000, 1400, 900}, "", Count<&Counts::double_clicks>},
    {"Text1", Text, "", {4500, 4000, 1400, 285}, "", Text1_Change},
    {.name = "Label1", .kind = Label, .at = {3000, 3000, 600, 255}, .transparent = true},
    {"Fast", Timer, "", {}, "", Tick_Fast, 200, false},
    {"Slow", Timer, "", {}, "", Count<&Counts::slow_ticks>, 200, false},
};

using enum Frame_Style;
inline constexpr auto Green = Colour{0, 192, 0}, Grey = Colour{212, 208, 200};
inline constexpr auto Load_Main = Count<&Counts::loads>, Unload_Main = Count<&Counts::unloads>;
inline constexpr Window Main_Window = {"Main_Window", "Main",      6000,         4800,
                                       main_controls, Sizable,     Colour_White, Green,
                                       Load_Main,     Unload_Main, Main_Resize,  Take_Press};

// Out of the order of the places on the screen: the Tab key goes by the table.
inline constexpr Control second_controls[] = {
    {"Frame1", Frame, "", {0, 0, 3000, 2400}},
    {"Option1", Option, "Frame1", {120, 1500, 1200, 255}},
    {"Option2", Option, "Frame1", {120, 1200, 1200, 255}},
    {.name = "Button2", .kind = Button, .at = {900, 2600, 600, 300}, .tab_index = 0},
    {"Dir1", Folder, "Frame1", {0, 200, 1500, 900}, "", Count<&Counts::moves>},
    {.name = "Text1", .kind = Text, .in = "Frame1", .at = {1500, 200, 900, 285}},
    {.name = "Button1",
     .kind = Button,
     .at = {0, 2600, 600, 300},
     .handler = Count<&Counts::clicks>,
     .cancels = true},
};
inline constexpr Window Second_Window = {
    "Second_Window", "Second", 3000, 3000, second_controls, Fixed, Grey, {}, Load_Second};
inline constexpr Window Key_Window = {"Key_Window", "Keys",  3000, 3000,    second_controls,
                                      Dialog,       Grey,    {},   nullptr, nullptr,
                                      nullptr,      nullptr, true};

consteval Control_Ref Main(std::string_view name) {
    return Find_Control(Main_Window, name);
}

consteval Control_Ref Second(std::string_view name) {
    return Find_Control(Second_Window, name);
}

inline constexpr auto Fast = Main("Fast"), Slow = Main("Slow"), Check1 = Main("Check1"),
                      Combo1 = Main("Combo1"), List1 = Main("List1"), Option1 = Main("Option1"),
                      Option2 = Main("Option2"), Dir1 = Second("Dir1");

/// What a small program starts with: the main window, everything counted from 0.
inline void Show_Main() {
    counts = {};
    on_fast_tick = nullptr;
    Show(Main_Window);
}

class Conformance : public testing::Test {
  protected:
    void SetUp() override { driver::Start(Show_Main); }
};

/// Of the frame.
inline std::pair<double, double> Pixels(const Window& window) {
    const Size outer = Outer_Size(window);
    return {Twips_To_Pixels_X(outer.width), Twips_To_Pixels_Y(outer.height)};
}

inline void Tick_Every(int milliseconds, Control_Ref timer) {
    Set_Interval(timer, milliseconds);
    Start_Timer(timer);
}

// A program may set a text from inside the news of its change; that is a change of its own.
inline void Text1_Change() {
    ++counts.text_changes;
    if (Text_Of(Main("Text1")) == "twice") Set_Text(Main("Text1"), "once");
}

inline void Load_Second() {
    using enum Insert_After;
    SetWindowPos(Second_Window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE);
}

inline void Main_Resize() {
    ++counts.resizes;
    counts.state_at_resize = State_Of(Main_Window);
}

}  // namespace conformance
