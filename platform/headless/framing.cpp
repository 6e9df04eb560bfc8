#include <climits>
#include <optional>

#include "platform/headless/commands.h"
#include "platform/headless/form.h"
#include "platform/headless/program.h"
#include "platform/headless/targets.h"

// What a user does with a window itself: its client area and its frame.
namespace platform::headless {

namespace {

std::optional<Mouse_Button> Button_Named(std::string_view name) {
    if (name == "left") return Mouse_Button::Left;
    if (name == "middle") return Mouse_Button::Middle;
    if (name == "right") return Mouse_Button::Right;
    return std::nullopt;
}

/// Where a pixel lies between two bounds of the user coordinates.
float Between(double start, double end, long long pixel, int pixels) {
    return static_cast<float>(start + static_cast<double>(pixel) * (end - start) / pixels);
}

bool Can_Be_Minimised(const Form& form) {
    return form.window->frame == Frame_Style::Fixed || form.window->frame == Frame_Style::Sizable;
}

}  // namespace

void Mouse_Command(Arguments arguments, Reply& reply) {
    const Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    const auto button = Button_Named(arguments[1]);
    if (!button) return Fail(reply, "no such button");
    const auto x = Whole_Number(arguments[2], 0, form->client_width - 1, reply);
    const auto y = Whole_Number(arguments[3], 0, form->client_height - 1, reply);
    if (!x || !y || !Takes_Input(*form, reply)) return;
    if (Is_Covered(*form, static_cast<int>(*x), static_cast<int>(*y))) return;
    const auto [left, top, right, bottom] = form->user_bounds;
    const Mouse_Handler press = form->window->mouse_down;
    if (press == nullptr) return;
    press(*button, Between(left, right, *x, form->client_width),
          Between(top, bottom, *y, form->client_height));
}

void Resize_Command(Arguments arguments, Reply& reply) {
    Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    if (form->window->frame != Frame_Style::Sizable || form->minimised) {
        return Fail(reply, "this window cannot be resized");
    }
    const auto width = Whole_Number(arguments[1], Frame_Width(*form->window), INT_MAX, reply);
    const auto height = Whole_Number(arguments[2], Frame_Height(*form->window), INT_MAX, reply);
    if (!width || !height || !Takes_Input(*form, reply)) return;
    Resize_Form(*form, static_cast<int>(*width), static_cast<int>(*height));
}

void Minimise_Command(Arguments arguments, Reply& reply) {
    Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    if (!Can_Be_Minimised(*form)) return Fail(reply, "this window cannot be minimised");
    if (Takes_Input(*form, reply)) Set_Minimised(*form, true);
}

void Restore_Command(Arguments arguments, Reply& reply) {
    Form* form = Form_Named(arguments[0], reply);
    if (form != nullptr && Takes_Input(*form, reply)) Set_Minimised(*form, false);
}

void Close_Command(Arguments arguments, Reply& reply) {
    const Form* form = Form_Named(arguments[0], reply);
    if (form != nullptr && Takes_Input(*form, reply)) Unload(*form->window);
}

void Untop_Command(Arguments arguments, Reply& reply) {
    if (Form* form = Form_Named(arguments[0], reply)) form->topmost = false;
}

}  // namespace platform::headless
