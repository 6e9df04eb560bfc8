#include "platform/controls.h"

#include <algorithm>

#include "platform/headless/form.h"
#include "platform/headless/program.h"

namespace platform {

namespace {

using headless::Control_State;
using headless::Find_State;

Control_Kind Kind_Of(Control_Ref control) {
    return control.window->controls[control.index].kind;
}

void Call_Handler(Control_Ref control) {
    headless::Call(control.window->controls[control.index].handler);
}

bool Has_Caption(Control_Kind kind) {
    return kind == Control_Kind::Frame || kind == Control_Kind::Label ||
           kind == Control_Kind::Button || kind == Control_Kind::Check ||
           kind == Control_Kind::Option || kind == Control_Kind::Menu;
}

}  // namespace

void Set_Caption(Control_Ref control, std::string_view caption) {
    Control_State* state = Find_State(control);
    if (state != nullptr && Has_Caption(Kind_Of(control))) state->caption = caption;
}

void Set_Text(Control_Ref control, std::string_view text) {
    if (Control_State* combo = Find_State(control, Control_Kind::Combo)) {
        combo->text = text;
        combo->index = -1;
        return;
    }
    Control_State* box = Find_State(control, Control_Kind::Text);
    if (box == nullptr || box->text == text) return;
    box->text = text;
    Call_Handler(control);
}

std::string Text_Of(Control_Ref control) {
    const Control_State* state = Find_State(control);
    return state == nullptr ? std::string() : state->text;
}

void Set_Enabled(Control_Ref control, bool enabled) {
    Control_State* state = Find_State(control);
    if (state != nullptr && Kind_Of(control) != Control_Kind::Timer) state->enabled = enabled;
}

void Repaint(Control_Ref) {}  // there is no screen to fall behind

void Set_Checked(Control_Ref control, bool checked) {
    Control_State* state = Find_State(control);
    if (state == nullptr || state->checked == checked) return;
    const Control_Kind kind = Kind_Of(control);
    if (kind == Control_Kind::Option) {
        headless::Set_Option(control, checked);
        if (!checked) return;
    } else if (kind == Control_Kind::Check) {
        state->checked = checked;
    } else {
        return;
    }
    Call_Handler(control);
}

bool Is_Checked(Control_Ref control) {
    const Control_State* state = Find_State(control);
    return state != nullptr && state->checked;
}

void headless::Set_Option(Control_Ref control, bool selected) {
    Form* form = Find_Form(*control.window);
    if (form == nullptr) return;
    const std::size_t container = form->controls[control.index].container;
    for (std::size_t i = 0; selected && i < form->controls.size(); ++i) {
        if (Kind_Of({control.window, i}) != Control_Kind::Option) continue;
        if (form->controls[i].container == container) form->controls[i].checked = false;
    }
    form->controls[control.index].checked = selected;
}

void Set_Transparent(Control_Ref control, bool transparent) {
    Control_State* label = Find_State(control, Control_Kind::Label);
    if (label != nullptr) label->transparent = transparent;
}

void Set_Progress(Control_Ref control, const Progress& progress) {
    Control_State* bar = Find_State(control, Control_Kind::Progress);
    if (bar == nullptr) return;
    bar->progress.minimum = progress.minimum;
    bar->progress.maximum = std::max(progress.minimum, progress.maximum);
    bar->progress.value = std::clamp(progress.value, bar->progress.minimum, bar->progress.maximum);
}

Progress Progress_Of(Control_Ref control) {
    const Control_State* bar = Find_State(control, Control_Kind::Progress);
    return bar == nullptr ? Progress{0, 0, 0} : bar->progress;
}

}  // namespace platform
