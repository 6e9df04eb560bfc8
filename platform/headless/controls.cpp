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

/// A combo or list box, whose entries the program fills; else null.
Control_State* Find_Fillable(Control_Ref control) {
    Control_State* combo = Find_State(control, Control_Kind::Combo);
    return combo != nullptr ? combo : Find_State(control, Control_Kind::List);
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

void headless::Select_Entry(Control_Ref control, int index) {
    Control_State* state = Find_State(control);
    if (state == nullptr) return;
    if (Kind_Of(control) == Control_Kind::Combo) {
        // A text that was picked goes with its selection, one that was typed or set stays.
        if (index >= 0) {
            state->text = state->entries[static_cast<std::size_t>(index)];
        } else if (state->index >= 0) {
            state->text.clear();
        }
    }
    state->index = index;
}

std::vector<std::string> headless::Entries_Of(Control_Ref control) {
    const Control_State* state = Find_State(control);
    if (state == nullptr) return {};
    return Kind_Of(control) == Control_Kind::Folder ? Subfolders(state->path) : state->entries;
}

void Clear_Entries(Control_Ref control) {
    Control_State* state = Find_Fillable(control);
    if (state == nullptr) return;
    headless::Select_Entry(control, -1);
    state->entries.clear();
}

void Add_Entries(Control_Ref control, std::span<const std::string> entries) {
    Control_State* state = Find_Fillable(control);
    if (state == nullptr) return;
    headless::Select_Entry(control, -1);
    auto& all = state->entries;
    all.insert(all.end(), entries.begin(), entries.end());
    const bool sorted = control.window->controls[control.index].sorted;
    if (sorted && !std::is_sorted(all.begin(), all.end())) std::sort(all.begin(), all.end());
}

int Entry_Count(Control_Ref control) {
    const Control_State* state = Find_State(control);
    if (state == nullptr) return 0;
    const bool is_folder = Kind_Of(control) == Control_Kind::Folder;
    return static_cast<int>(is_folder ? headless::Entries_Of(control).size()
                                      : state->entries.size());
}

std::string Entry_Text(Control_Ref control, int index) {
    if (index < 0 || index >= Entry_Count(control)) return {};
    const auto place = static_cast<std::size_t>(index);
    if (Kind_Of(control) == Control_Kind::Folder) return headless::Entries_Of(control)[place];
    return Find_State(control)->entries[place];
}

int Selected_Index(Control_Ref control) {
    const Control_State* state = Find_State(control);
    return state == nullptr ? -1 : state->index;
}

std::string Drive_Name(Control_Ref control) {
    if (Find_State(control, Control_Kind::Drive) == nullptr) return {};
    return Entry_Text(control, Selected_Index(control)).substr(0, 2);
}

}  // namespace platform
