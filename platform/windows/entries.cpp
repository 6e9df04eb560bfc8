#include <algorithm>

#include "platform/controls.h"
#include "platform/windows/entry_combo.h"
#include "platform/windows/live.h"
#include "platform/windows/text.h"

namespace platform {

namespace {

using windows::Live_Control;

/// A combo or list box, whose entries the program fills; else null.
Live_Control* Find_Fillable(Control_Ref control) {
    Live_Control* combo = windows::Find_Live(control, Control_Kind::Combo);
    return combo != nullptr ? combo : windows::Find_Live(control, Control_Kind::List);
}

/// A text that was picked goes with its selection, one that was typed or set stays.
void Clear_Selection(Live_Control& live) {
    if (live.row->kind != Control_Kind::Combo) return;
    windows::Close_List(live);
    if (live.selected >= 0) windows::Set_Combo_Text(live, "");
}

void Show_Entries(const Live_Control& live) {
    if (live.row->kind != Control_Kind::List) return;
    SendMessageW(live.handle, WM_SETREDRAW, FALSE, 0);
    SendMessageW(live.handle, LB_RESETCONTENT, 0, 0);
    for (const std::string& entry : live.entries) {
        SendMessageW(live.handle, LB_ADDSTRING, 0,
                     reinterpret_cast<LPARAM>(windows::To_Wide(entry).c_str()));
    }
    SendMessageW(live.handle, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(live.handle, nullptr, TRUE);
}

/// All entries of a combo, list, drive or folder list.
std::vector<std::string> Entries_Of(Control_Ref control) {
    const Live_Control* live = windows::Find_Live(control);
    if (live == nullptr) return {};
    std::vector<std::string> entries = live->entries;
    for (const std::wstring& name : live->subfolders)
        entries.push_back(windows::From_Wide_Lossy(name));
    return entries;
}

}  // namespace

void Clear_Entries(Control_Ref control) {
    Live_Control* live = Find_Fillable(control);
    if (live == nullptr) return;
    Clear_Selection(*live);
    live->entries.clear();
    Show_Entries(*live);
}

void Add_Entries(Control_Ref control, std::span<const std::string> entries) {
    Live_Control* live = Find_Fillable(control);
    if (live == nullptr) return;
    Clear_Selection(*live);
    std::vector<std::string>& all = live->entries;
    all.insert(all.end(), entries.begin(), entries.end());
    if (live->row->sorted && !std::is_sorted(all.begin(), all.end())) {
        std::sort(all.begin(), all.end());
    }
    Show_Entries(*live);
}

int Entry_Count(Control_Ref control) {
    const Live_Control* live = windows::Find_Live(control);
    return live != nullptr ? static_cast<int>(live->entries.size() + live->subfolders.size()) : 0;
}

std::string Entry_Text(Control_Ref control, int index) {
    if (index < 0 || index >= Entry_Count(control)) return {};
    const auto place = static_cast<std::size_t>(index);
    const Live_Control* live = Find_Fillable(control);
    return live != nullptr ? live->entries[place] : Entries_Of(control)[place];
}

int Selected_Index(Control_Ref control) {
    const Live_Control* live = windows::Find_Live(control);
    if (live == nullptr) return -1;
    switch (live->row->kind) {
        case Control_Kind::Combo:
            return live->selected;
        case Control_Kind::List:
            return static_cast<int>(SendMessageW(live->handle, LB_GETCURSEL, 0, 0));
        case Control_Kind::Drive:
            return static_cast<int>(SendMessageW(live->handle, CB_GETCURSEL, 0, 0));
        default:
            return -1;
    }
}

std::string Drive_Name(Control_Ref control) {
    if (windows::Find_Live(control, Control_Kind::Drive) == nullptr) return {};
    return Entry_Text(control, Selected_Index(control)).substr(0, 2);
}

}  // namespace platform
