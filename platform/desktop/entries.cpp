#include <QStringList>
#include <algorithm>

#include "platform/controls.h"
#include "platform/desktop/entry_combo.h"
#include "platform/desktop/entry_list.h"
#include "platform/desktop/folder_list.h"
#include "platform/desktop/live_control.h"
#include "platform/desktop/drawing/text.h"
#include "platform/desktop/windows.h"

namespace platform {

namespace {

using desktop::Live_Control;

/// A combo or list box, whose entries the program fills; else null.
Live_Control* Find_Fillable(Control_Ref control) {
    Live_Control* live = desktop::Find_Live(control);
    if (live == nullptr) return nullptr;
    const Control_Kind kind = live->row->kind;
    return kind == Control_Kind::Combo || kind == Control_Kind::List ? live : nullptr;
}

void Show_Entries(const Live_Control& live) {
    QStringList shown;
    shown.reserve(static_cast<qsizetype>(live.entries.size()));
    for (const std::string& entry : live.entries)
        shown.append(desktop::To_Qt(entry));
    if (live.row->kind == Control_Kind::Combo) {
        static_cast<desktop::Entry_Combo*>(live.widget)->Set_Entries(shown);
    } else {
        static_cast<desktop::Entry_List*>(live.widget)->Set_Entries(shown);
    }
}

/// All entries of a combo, list or folder list; a drive list has none.
std::vector<std::string> Entries_Of(Control_Ref control) {
    const Live_Control* live = desktop::Find_Live(control);
    if (live == nullptr) return {};
    if (live->row->kind != Control_Kind::Folder) return live->entries;
    return static_cast<desktop::Folder_List*>(live->widget)->Subfolders();
}

}  // namespace

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
    if (live->row->sorted && !std::is_sorted(all.begin(), all.end())) {
        std::sort(all.begin(), all.end());
    }
    Show_Entries(*live);
}

int Entry_Count(Control_Ref control) {
    const Live_Control* live = Find_Fillable(control);
    return static_cast<int>(live != nullptr ? live->entries.size() : Entries_Of(control).size());
}

std::string Entry_Text(Control_Ref control, int index) {
    if (index < 0 || index >= Entry_Count(control)) return {};
    const auto place = static_cast<std::size_t>(index);
    const Live_Control* live = Find_Fillable(control);
    return live != nullptr ? live->entries[place] : Entries_Of(control)[place];
}

int Selected_Index(Control_Ref control) {
    const Live_Control* live = Find_Fillable(control);
    if (live == nullptr) return -1;
    return live->row->kind == Control_Kind::Combo
               ? static_cast<const desktop::Entry_Combo*>(live->widget)->Picked()
               : static_cast<const desktop::Entry_List*>(live->widget)->Picked();
}

std::string Drive_Name(Control_Ref) {
    return {};
}

}  // namespace platform
