#include "platform/window.h"

#include <algorithm>

#include "platform/headless/form.h"
#include "platform/headless/program.h"

namespace platform {

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
