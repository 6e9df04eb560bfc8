#include <algorithm>

#include "platform/controls.h"
#include "platform/headless/folder_list.h"
#include "platform/headless/form.h"

namespace platform {

namespace {

using headless::Control_State;
using headless::Find_State;

Control_Kind Kind_Of(Control_Ref control) {
    return control.window->controls[control.index].kind;
}

/// A combo or list box, whose entries the program fills; else null.
Control_State* Find_Fillable(Control_Ref control) {
    Control_State* combo = Find_State(control, Control_Kind::Combo);
    return combo != nullptr ? combo : Find_State(control, Control_Kind::List);
}

}  // namespace

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
