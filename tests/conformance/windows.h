#pragma once

#include "platform/controls.h"
#include "platform/window.h"

/// The windows that the conformance test runs its small programs on, and what their handlers have
/// counted.
namespace conformance {

struct Counts {
    int loads, unloads, resizes, presses;
    int fast_ticks, slow_ticks;
    int clicks, check_clicks, first_clicks, second_clicks, text_changes, double_clicks;
    platform::Window_State state_at_resize;
    platform::Mouse_Button button;
    float press_x, press_y;
};
inline Counts counts;

/// What a tick of `Fast` does besides counting.
inline platform::Handler on_fast_tick = nullptr;

void Text1_Change();
void Main_Resize();

// The controls keep to the right part of the window, so that the left part shows the drawing.
using enum platform::Control_Kind;
inline constexpr platform::Control main_controls[] = {
    {.name = "Frame1", .kind = Frame, .at = {4500, 0, 1500, 1500}},
    {.name = "Option1",
     .kind = Option,
     .in = "Frame1",
     .at = {120, 300, 1200, 255},
     .handler = [] { ++counts.first_clicks; }},
    {.name = "Option2",
     .kind = Option,
     .in = "Frame1",
     .at = {120, 600, 1200, 255},
     .handler = [] { ++counts.second_clicks; }},
    {.name = "Option3", .kind = Option, .at = {4500, 1600, 1200, 255}},
    {.name = "Check1",
     .kind = Check,
     .at = {4500, 1900, 1200, 255},
     .handler = [] { ++counts.check_clicks; }},
    {.name = "Button1",
     .kind = Button,
     .at = {4500, 2200, 1200, 300},
     .handler = [] { ++counts.clicks; }},
    {.name = "Combo1",
     .kind = Combo,
     .at = {4500, 2600, 1400, 315},
     .caption = "[start]",
     .sorted = true},
    {.name = "List1",
     .kind = List,
     .at = {4500, 3000, 1400, 900},
     .handler = [] { ++counts.double_clicks; }},
    {.name = "Text1",
     .kind = Text,
     .at = {4500, 4000, 1400, 285},
     .handler = Text1_Change,
     .read_only = true},
    {.name = "Bar1", .kind = Progress, .at = {4500, 4300, 1400, 255}},
    {.name = "Fast",
     .kind = Timer,
     .handler =
         [] {
             ++counts.fast_ticks;
             if (on_fast_tick != nullptr) on_fast_tick();
         },
     .interval = 200,
     .enabled = false},
    {.name = "Slow",
     .kind = Timer,
     .handler = [] { ++counts.slow_ticks; },
     .interval = 200,
     .enabled = false},
};

inline constexpr platform::Window Main_Window = {
    .name = "Main_Window",
    .caption = "Main",
    .client_width = 6000,
    .client_height = 4800,
    .controls = main_controls,
    .frame = platform::Frame_Style::Sizable,
    .back_colour = platform::Colour_White,
    .fore_colour = {0, 192, 0},
    .load = [] { ++counts.loads; },
    .unload = [] { ++counts.unloads; },
    .resize = Main_Resize,
    .mouse_down =
        [](platform::Mouse_Button button, float x, float y) {
            ++counts.presses;
            counts.button = button;
            counts.press_x = x;
            counts.press_y = y;
        }};

inline constexpr platform::Control second_controls[] = {
    {.name = "Dir1", .kind = Folder, .at = {0, 0, 1500, 1500}},
};

inline constexpr platform::Window Second_Window = {.name = "Second_Window",
                                                   .caption = "Second",
                                                   .client_width = 3000,
                                                   .client_height = 3000,
                                                   .controls = second_controls};

consteval platform::Control_Ref Main(std::string_view name) {
    return platform::Find_Control(Main_Window, name);
}

/// What a small program starts with: the main window, everything counted from 0.
inline void Show_Main() {
    counts = {};
    on_fast_tick = nullptr;
    platform::Show(Main_Window);
}

// A program may set a text from inside the news of its change; that is a change of its own.
inline void Text1_Change() {
    ++counts.text_changes;
    if (platform::Text_Of(Main("Text1")) == "twice") platform::Set_Text(Main("Text1"), "once");
}

inline void Main_Resize() {
    ++counts.resizes;
    counts.state_at_resize = platform::State_Of(Main_Window);
}

}  // namespace conformance
