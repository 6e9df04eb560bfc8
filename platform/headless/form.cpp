#include "platform/headless/form.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "platform/headless/program.h"

namespace platform {

namespace headless {

std::vector<std::unique_ptr<Form>> forms;

namespace {

std::size_t Container_Of(const Window& window, const Control& control) {
    const std::string_view name = control.in;
    if (name.empty()) return No_Container;
    for (std::size_t i = 0; i < window.controls.size(); ++i) {
        if (window.controls[i].name == name) return i;
    }
    return No_Container;
}

Control_State Make_Control(const Window& window, const Control& control) {
    const bool has_text = control.kind == Control_Kind::Text || control.kind == Control_Kind::Combo;
    Control_State state;
    state.container = Container_Of(window, control);
    (has_text ? state.text : state.caption) = control.caption;
    state.enabled = control.enabled;
    state.transparent = control.transparent;
    if (control.kind == Control_Kind::Drive) state.entries = drive_entries;
    if (control.kind == Control_Kind::Folder) state.path = Current_Folder();
    if (control.kind == Control_Kind::Timer) {
        state.running = control.enabled;
        state.interval = std::max(control.interval, 0);
        state.due = Clock() + state.interval;
    }
    return state;
}

/// Halves to even.
int Whole_Pixels(int twips) {
    return static_cast<int>(std::lrint(static_cast<double>(twips) / Twips_Per_Pixel));
}

bool Is_Shown_On_Client(Control_Kind kind) {
    return kind != Control_Kind::Menu && kind != Control_Kind::Timer;
}

/// As the window's table describes it.
std::unique_ptr<Form> Make_Form(const Window& window) {
    auto form = std::make_unique<Form>();
    form->window = &window;
    form->caption = window.caption;
    form->client_width = Whole_Pixels(window.client_width);
    form->client_height = Whole_Pixels(window.client_height);
    form->user_bounds = {0, 0, static_cast<double>(window.client_width),
                         static_cast<double>(window.client_height)};
    form->device.state.pen_colour = window.fore_colour;
    for (const Control& control : window.controls)
        form->controls.push_back(Make_Control(window, control));
    return form;
}

}  // namespace

Form* Find_Form(const Window& window) {
    for (const auto& form : forms) {
        if (form->window == &window) return form.get();
    }
    return nullptr;
}

Control_State* Find_State(Control_Ref control) {
    Form* form = Find_Form(*control.window);
    if (form == nullptr || control.index >= form->controls.size()) return nullptr;
    return &form->controls[control.index];
}

Control_State* Find_State(Control_Ref control, Control_Kind kind) {
    Control_State* state = Find_State(control);
    return state != nullptr && control.window->controls[control.index].kind == kind ? state
                                                                                    : nullptr;
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
    const int width = std::max(outer_width - Frame_Width(*form.window), 0);
    const int height = std::max(outer_height - Frame_Height(*form.window), 0);
    if (width == form.client_width && height == form.client_height) return;
    form.client_width = width;
    form.client_height = height;
    Call(form.window->resize);
}

void Set_Minimised(Form& form, bool minimised) {
    if (form.minimised == minimised) return;
    form.minimised = minimised;
    Call(form.window->resize);
}

bool Is_Covered(const Form& form, int x, int y) {
    for (std::size_t i = 0; i < form.controls.size(); ++i) {
        const Control& control = form.window->controls[i];
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

using headless::Find_Form;
using headless::Form;
using headless::forms;

void Show(const Window& window) {
    if (!Is_Loaded(window)) {
        forms.push_back(headless::Make_Form(window));
        headless::Call(window.load);
    }
    if (Form* form = Find_Form(window)) form->visible = true;  // its load may have ended it
}

void Unload(const Window& window) {
    Form* form = Find_Form(window);
    if (form == nullptr || form->unloading) return;
    form->unloading = true;
    headless::Call(window.unload);
    std::erase_if(forms, [&window](const auto& each) { return each->window == &window; });
}

bool Is_Loaded(const Window& window) {
    return Find_Form(window) != nullptr;
}

void Set_Caption(const Window& window, std::string_view caption) {
    if (Form* form = Find_Form(window)) form->caption = caption;
}

void Set_Enabled(const Window& window, bool enabled) {
    if (Form* form = Find_Form(window)) form->enabled = enabled;
}

void Repaint(const Window&) {}  // there is no screen to fall behind

Window_State State_Of(const Window& window) {
    const Form* form = Find_Form(window);
    return form != nullptr && form->minimised ? Window_State::Minimised : Window_State::Normal;
}

void Minimise(const Window& window) {
    if (Form* form = Find_Form(window)) headless::Set_Minimised(*form, true);
}

Size Outer_Size(const Window& window) {
    const Form* form = Find_Form(window);
    if (form == nullptr) return {};
    const double width = form->client_width + headless::Frame_Width(window);
    const double height = form->client_height + headless::Frame_Height(window);
    return {width * headless::Twips_Per_Pixel, height * headless::Twips_Per_Pixel};
}

double Twips_To_Pixels_X(double twips) {
    return twips / headless::Twips_Per_Pixel;
}

double Twips_To_Pixels_Y(double twips) {
    return twips / headless::Twips_Per_Pixel;
}

void Erase(const Window& window) {
    if (Form* form = Find_Form(window)) headless::Wipe(form->device);
}

void Set_User_Coordinates(const Window& window, double left, double top, double right,
                          double bottom) {
    if (Form* form = Find_Form(window)) form->user_bounds = {left, top, right, bottom};
}

void SetWindowPos(const Window& window, Insert_After after, int x, int y, int cx, int cy,
                  unsigned flags) {
    Form* form = Find_Form(window);
    if (form == nullptr) return;
    form->topmost = after == Insert_After::HWND_TOPMOST;
    if ((flags & SWP_NOMOVE) == 0) {
        form->left = x;
        form->top = y;
    }
    if ((flags & SWP_NOSIZE) == 0) headless::Resize_Form(*form, cx, cy);
}

}  // namespace platform
