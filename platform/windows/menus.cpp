#include "platform/windows/controls.h"

namespace platform::windows {

namespace {

/// Adds the rows that stand in `title`, and theirs in turn; null if there are none.
HMENU Entries_Of(const Live_Window& window, std::string_view title) {
    HMENU menu = nullptr;
    for (std::size_t i = 0; i < window.controls.size(); ++i) {
        const Control& row = *window.controls[i].row;
        if (row.kind != Control_Kind::Menu || title != row.in) continue;
        if (menu == nullptr) menu = title.empty() ? CreateMenu() : CreatePopupMenu();
        const HMENU entries = Entries_Of(window, row.name);
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_ID | MIIM_STRING | MIIM_STATE | MIIM_SUBMENU;
        item.wID = static_cast<UINT>(First_Id + static_cast<int>(i));
        item.fState = row.enabled ? MFS_ENABLED : MFS_DISABLED;
        item.hSubMenu = entries;
        std::wstring caption = Escaped_Caption(row.caption);
        item.dwTypeData = caption.data();
        InsertMenuItemW(menu, static_cast<UINT>(i), TRUE, &item);
    }
    return menu;
}

UINT Id_Of(const Live_Control& entry) {
    return static_cast<UINT>(First_Id + (&entry - entry.Holder().controls.data()));
}

}  // namespace

HMENU Build_Menus(Live_Window& window) {
    return Entries_Of(window, "");
}

void Show_Menu_Caption(const Live_Control& entry) {
    std::wstring text = Escaped_Caption(entry.caption);
    MENUITEMINFOW item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STRING;
    item.dwTypeData = text.data();
    SetMenuItemInfoW(GetMenu(entry.Holder().handle), Id_Of(entry), FALSE, &item);
    DrawMenuBar(entry.Holder().handle);
}

void Enable_Menu(const Live_Control& entry) {
    EnableMenuItem(GetMenu(entry.Holder().handle), Id_Of(entry),
                   entry.enabled ? MF_ENABLED : MF_GRAYED);
    DrawMenuBar(entry.Holder().handle);
}

}  // namespace platform::windows
