#include "platform/headless/form.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "platform/headless/program.h"

namespace platform {

namespace headless {

namespace {

std::size_t Container_Of(const Window& window, const Control& control) {
    const std::string_view name = control.in;
    if (name.empty()) return No_Container;
    for (std::size_t i = 0; i < window.controls.size(); ++i) {
        if (window.controls[i].name == name) return i;
    }
    return No_Container;
}

/// Halves to even.
int Whole_Pixels(int twips) {
    return static_cast<int>(std::lrint(static_cast<double>(twips) / Twips_Per_Pixel));
}

bool Is_Shown_On_Client(Control_Kind kind) {
    return kind != Control_Kind::Menu && kind != Control_Kind::Timer;
}

}  // namespace

Form::Form(const Window& window)
    : Live_Window(window),
      client_width(Whole_Pixels(window.client_width)),
      client_height(Whole_Pixels(window.client_height)) {
    device.state.pen_colour = window.fore_colour;
    controls.reserve(window.controls.size());
    for (const Control& row : window.controls) {
        Control_State& state = controls.emplace_back(*this, row);
        state.container = Container_Of(window, row);
        if (row.kind == Control_Kind::Drive) state.entries = drive_entries;
        if (row.kind == Control_Kind::Folder) Move_Folder_List(state, Current_Folder());
        rows.push_back(&state);
    }
    was_shown = true;
    reported_size = Frame_Pixels();
}

Window_State Form::State() const {
    return minimised ? Window_State::Minimised : Window_State::Normal;
}

Pixels Form::Frame_Pixels() const {
    return {client_width + Frame_Width(table), client_height + Frame_Height(table)};
}

void Form::Place(int x, int y, int cx, int cy, unsigned flags) {
    if ((flags & SWP_NOMOVE) == 0) {
        left = x;
        top = y;
    }
    if ((flags & SWP_NOSIZE) == 0) Resize_Form(*this, cx, cy);
}

int Frame_Width(const Window&) {
    return 8;
}

int Frame_Height(const Window& window) {
    const bool has_menu_bar =
        std::any_of(window.controls.begin(), window.controls.end(),
                    [](const Control& control) { return control.kind == Control_Kind::Menu; });
    return has_menu_bar ? 46 : 27;
}

void Resize_Form(Form& form, int outer_width, int outer_height) {
    const int width = std::max(outer_width - Frame_Width(form.table), 0);
    const int height = std::max(outer_height - Frame_Height(form.table), 0);
    if (width == form.client_width && height == form.client_height) return;
    form.client_width = width;
    form.client_height = height;
    form.reported_size = form.Frame_Pixels();
    Call(form.table.resize);
}

void Set_Minimised(Form& form, bool minimised) {
    if (form.minimised == minimised) return;
    form.minimised = minimised;
    form.reported_state = form.State();
    Call(form.table.resize);
}

bool Is_Covered(const Form& form, int x, int y) {
    for (std::size_t i = 0; i < form.controls.size(); ++i) {
        const Control& control = form.table.controls[i];
        if (form.controls[i].container != No_Container || !Is_Shown_On_Client(control.kind))
            continue;
        const int left = Whole_Pixels(control.at.left);
        const int top = Whole_Pixels(control.at.top);
        if (x >= left && x < left + Whole_Pixels(control.at.width) && y >= top &&
            y < top + Whole_Pixels(control.at.height)) {
            return true;
        }
    }
    return false;
}

}  // namespace headless

common::Live_Window* common::Make_Window(const Window& table) {
    return new headless::Form(table);
}

double Twips_To_Pixels_X(double twips) {
    return twips / headless::Twips_Per_Pixel;
}

double Twips_To_Pixels_Y(double twips) {
    return twips / headless::Twips_Per_Pixel;
}

}  // namespace platform
