#include "platform/controls.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/code_page.h"
#include "platform/common/handlers.h"
#include "platform/common/live.h"
#include "platform/message_box.h"
#include "platform/timers.h"

namespace platform {

namespace {

using common::Find_Live;
using common::Live_Control;

Control_Kind Kind_Of(const Live_Control& control) {
    return control.row->kind;
}

bool Has_Caption(Control_Kind kind) {
    return kind == Control_Kind::Frame || kind == Control_Kind::Label ||
           kind == Control_Kind::Button || kind == Control_Kind::Check ||
           kind == Control_Kind::Option || kind == Control_Kind::Menu;
}

/// A combo or list box, whose entries the program fills; else null.
Live_Control* Find_Fillable(Control_Ref control) {
    Live_Control* combo = Find_Live(control, Control_Kind::Combo);
    return combo != nullptr ? combo : Find_Live(control, Control_Kind::List);
}

void Show_Entries(Live_Control& list) {
    list.matches.clear();
    common::Take_Pick(list, -1);
    list.Show_Entries();
    list.Show_Text();
}

void Check(Live_Control& control, bool checked) {
    control.checked = checked;
    control.Show_Checked();
}

/// Selecting an option button clears the others of the same frame.
void Choose(Live_Control& control, bool checked) {
    Check(control, checked);
    if (!checked || Kind_Of(control) != Control_Kind::Option) return;
    for (Live_Control* other : control.window->rows) {
        const bool is_neighbour = other != &control && Kind_Of(*other) == Control_Kind::Option &&
                                  std::string_view(other->row->in) == control.row->in;
        if (is_neighbour) Check(*other, false);
    }
}

}  // namespace

namespace common {

std::vector<std::size_t> Matches(const std::vector<std::string>& entries, std::string_view typed) {
    const std::string text = Lower_Case(typed);
    if (text.empty()) return {};
    const std::string code = "(" + text + ")";
    std::array<std::vector<std::size_t>, 3> ranks;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::string entry = Lower_Case(entries[i]);
        const std::size_t place = entry.find(text);
        if (place == std::string::npos) continue;
        ranks[entry.ends_with(code) ? 0 : place == 0 ? 1 : 2].push_back(i);
    }
    for (const auto& rank : {ranks[1], ranks[2]})
        ranks[0].insert(ranks[0].end(), rank.begin(), rank.end());
    return ranks[0];
}

bool Shows_Hint(const Live_Control& combo) {
    return combo.selected < 0 && combo.text == combo.row->caption;
}

void Take_Typed(Live_Control& combo, std::string text) {
    combo.text = std::move(text);
    combo.selected = -1;
    combo.matches = Matches(combo.entries, combo.text);
    Fire(combo);
}

void Take_Click(Live_Control& control) {
    const bool is_option = Kind_Of(control) == Control_Kind::Option;
    if (is_option && control.checked) return;
    if (is_option || Kind_Of(control) == Control_Kind::Check) Choose(control, !control.checked);
    Fire(control);
}

void Take_Escape(const Live_Window& window) {
    for (Live_Control* control : window.rows) {
        if (control->row->cancels && control->enabled && window.takes_input)
            return Take_Click(*control);
    }
}

void Take_Pick(Live_Control& list, int index) {
    if (Kind_Of(list) == Control_Kind::Combo) {
        // A text that was picked goes with its selection, one that was typed or set stays.
        if (index >= 0) {
            list.text = list.entries[static_cast<std::size_t>(index)];
        } else if (list.selected >= 0) {
            list.text.clear();
        }
    }
    list.selected = index;
}

void Take_Return(Live_Control& combo) {
    if (combo.selected >= 0 || combo.matches.size() != 1) return;
    Take_Pick(combo, static_cast<int>(combo.matches.front()));
    combo.Show_Text();
}

void Refuse_Folder(const std::string& name) {
    const Handler_Scope scope;
    Message_Box("The folder \"" + name +
                    "\" cannot be used, because its name holds characters that this program cannot "
                    "write.",
                Icon::Exclamation);
}

}  // namespace common

void Set_Caption(Control_Ref control, std::string_view caption) {
    Live_Control* live = Find_Live(control);
    // Setting the same caption anew would make it flicker.
    if (live == nullptr || !Has_Caption(Kind_Of(*live)) || live->caption == caption) return;
    live->caption = caption;
    live->Show_Caption();
}

void Set_Text(Control_Ref control, std::string_view text) {
    Live_Control* live = Find_Live(control, Control_Kind::Combo);
    const bool is_combo = live != nullptr;
    if (!is_combo) live = Find_Live(control, Control_Kind::Text);
    if (live == nullptr || (!is_combo && live->text == text)) return;
    live->text = text;
    live->selected = -1;
    live->matches.clear();
    live->Show_Text();
    if (!is_combo) common::Call(live->row->handler);
}

std::string Text_Of(Control_Ref control) {
    const Live_Control* live = Find_Live(control);
    return live != nullptr ? live->text : std::string();
}

void Set_Enabled(Control_Ref control, bool enabled) {
    Live_Control* live = Find_Live(control);
    if (live == nullptr || Kind_Of(*live) == Control_Kind::Timer) return;
    live->enabled = enabled;
    live->Show_Enabled();
}

void Repaint(Control_Ref control) {
    if (Live_Control* live = Find_Live(control)) live->Repaint();
}

void Set_Checked(Control_Ref control, bool checked) {
    Live_Control* live = Find_Live(control, Control_Kind::Check);
    const bool is_check = live != nullptr;
    if (!is_check) live = Find_Live(control, Control_Kind::Option);
    if (live == nullptr || live->checked == checked) return;
    Choose(*live, checked);
    if (checked || is_check) common::Call(live->row->handler);
}

bool Is_Checked(Control_Ref control) {
    const Live_Control* live = Find_Live(control);
    return live != nullptr && live->checked;
}

void Set_Transparent(Control_Ref control, bool transparent) {
    Live_Control* label = Find_Live(control, Control_Kind::Label);
    if (label == nullptr) return;
    label->transparent = transparent;
    label->Show_Transparent();
}

void Clear_Entries(Control_Ref control) {
    Live_Control* live = Find_Fillable(control);
    if (live == nullptr) return;
    live->entries.clear();
    Show_Entries(*live);
}

void Add_Entries(Control_Ref control, std::span<const std::string> entries) {
    Live_Control* live = Find_Fillable(control);
    if (live == nullptr) return;
    std::vector<std::string>& all = live->entries;
    all.insert(all.end(), entries.begin(), entries.end());
    if (live->row->sorted && !std::ranges::is_sorted(all)) std::ranges::sort(all);
    Show_Entries(*live);
}

int Entry_Count(Control_Ref control) {
    const Live_Control* live = Find_Live(control);
    return live != nullptr ? static_cast<int>(live->entries.size()) : 0;
}

std::string Entry_Text(Control_Ref control, int index) {
    if (index < 0 || index >= Entry_Count(control)) return {};
    return Find_Live(control)->entries[static_cast<std::size_t>(index)];
}

int Selected_Index(Control_Ref control) {
    const Live_Control* live = Find_Live(control);
    return live != nullptr ? live->selected : -1;
}

std::string Folder_Path(Control_Ref control) {
    const Live_Control* list = Find_Live(control, Control_Kind::Folder);
    return list != nullptr ? list->folder : std::string();
}

void Set_Folder_Path(Control_Ref control, std::string_view path) {
    Live_Control* list = Find_Live(control, Control_Kind::Folder);
    if (list != nullptr && list->Go_To(path)) common::Call(list->row->handler);
}

std::string Drive_Name(Control_Ref control) {
    if (Find_Live(control, Control_Kind::Drive) == nullptr) return {};
    return Entry_Text(control, Selected_Index(control)).substr(0, 2);
}

void Set_Progress(Control_Ref control, const Progress& progress) {
    Live_Control* live = Find_Live(control, Control_Kind::Progress);
    if (live == nullptr) return;
    Progress& shown = live->progress;
    shown.minimum = progress.minimum;
    shown.maximum = std::max(progress.minimum, progress.maximum);
    shown.value = std::clamp(progress.value, shown.minimum, shown.maximum);
    live->Show_Progress();
}

Progress Progress_Of(Control_Ref control) {
    const Live_Control* live = Find_Live(control, Control_Kind::Progress);
    return live != nullptr ? live->progress : Progress{0, 0, 0};
}

void Start_Timer(Control_Ref timer) {
    Live_Control* live = Find_Live(timer, Control_Kind::Timer);
    if (live == nullptr || std::exchange(live->running, true)) return;
    live->Fit_Timer();
}

void Stop_Timer(Control_Ref timer) {
    Live_Control* live = Find_Live(timer, Control_Kind::Timer);
    if (live == nullptr || !std::exchange(live->running, false)) return;
    live->Fit_Timer();
}

bool Is_Running(Control_Ref timer) {
    const Live_Control* live = Find_Live(timer, Control_Kind::Timer);
    return live != nullptr && live->running;
}

void Set_Interval(Control_Ref timer, int milliseconds) {
    Live_Control* live = Find_Live(timer, Control_Kind::Timer);
    if (live == nullptr) return;
    live->interval = std::max(milliseconds, 0);
    live->Fit_Timer();
}

}  // namespace platform
