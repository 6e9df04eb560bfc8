#include "platform/windows/controls.h"

#include <algorithm>

#include "platform/windows/entry_combo.h"
#include "platform/windows/folder_list.h"
#include "platform/windows/handlers.h"
#include "platform/windows/measures.h"
#include "platform/windows/menus.h"
#include "platform/windows/text.h"

namespace platform {

namespace windows {

namespace {

Control_Kind Kind_Of(const Live_Control& control) {
    return control.row->kind;
}

/// What is left for the caption beside the mark of a check box or option button.
int Room_For_Caption(const Live_Control& control) {
    const int width = control.place.right - control.place.left;
    const bool has_mark =
        Kind_Of(control) == Control_Kind::Check || Kind_Of(control) == Control_Kind::Option;
    constexpr int Mark = 270;  // twips
    return has_mark ? width - To_Pixels(Mark) : width;
}

/// A caption a little too long for its control is condensed rather than cut.
void Show_Caption(Live_Control& control, std::string_view caption) {
    const std::wstring text = To_Wide(caption);
    const auto old = reinterpret_cast<HFONT>(SendMessageW(control.handle, WM_GETFONT, 0, 0));
    HFONT font = control.font != nullptr ? control.font : Default_Font();
    const int room = Room_For_Caption(control);
    const bool is_one_line = (GetWindowLongW(control.handle, GWL_STYLE) & SS_TYPEMASK) != SS_LEFT ||
                             Kind_Of(control) != Control_Kind::Label;
    if (is_one_line && Text_Extent(font, text).cx > room) {
        font = Make_Narrow_Font(font, text, room);
    }
    SendMessageW(control.handle, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    if (old != font && old != control.font && old != Default_Font()) DeleteObject(old);
    const bool is_label = Kind_Of(control) == Control_Kind::Label;
    SetWindowTextW(control.handle, is_label ? text.c_str() : Escaped_Caption(caption).c_str());
}

void Show_Check(Live_Control& control, bool checked) {
    control.checked = checked;
    SendMessageW(control.handle, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

/// Clears the other option buttons of the same frame.
void Select_Option(Live_Control& option) {
    for (Live_Control& other : option.window->controls) {
        const bool is_neighbour = Kind_Of(other) == Control_Kind::Option &&
                                  std::string_view(other.row->in) == option.row->in;
        if (is_neighbour) Show_Check(other, &other == &option);
    }
}

void Take_Click(Live_Control& control) {
    switch (Kind_Of(control)) {
        case Control_Kind::Button:
            Fire(control);
            break;
        case Control_Kind::Check:
            control.checked = !control.checked;
            Fire(control);
            break;
        case Control_Kind::Option:
            if (control.checked) break;
            Select_Option(control);
            Fire(control);
            break;
        default:
            break;
    }
}

void Show_Text(Live_Control& control) {
    control.is_setting = true;
    SetWindowTextW(control.handle, To_Wide(control.text).c_str());
    control.is_setting = false;
}

void Take_Typed(Live_Control& control) {
    if (control.is_setting) return;
    control.text = Window_Text(control.handle);
    Fire(control);
}

/// The control that had the focus first has it again, whatever has been disabled after it.
void Enable_Control(const Live_Control& control, bool enabled) {
    Live_Window& window = *control.window;
    HWND focus = GetFocus();
    HWND& kept = IsChild(window.handle, focus) ? focus : window.focus;
    const bool has_focus = kept == control.handle || IsChild(control.handle, kept);
    EnableWindow(control.handle, enabled);
    if (enabled && window.lost_focus == control.handle) {
        window.lost_focus = nullptr;
        kept = control.handle;
    } else if (!enabled && has_focus) {
        if (window.lost_focus == nullptr) window.lost_focus = control.handle;
        kept = GetNextDlgTabItem(window.handle, control.handle, FALSE);
    } else {
        return;
    }
    if (&kept == &focus) SetFocus(kept);
}

}  // namespace

std::wstring Escaped_Caption(std::string_view caption) {
    std::wstring escaped;
    for (const wchar_t character : To_Wide(caption))
        escaped.append(character == L'&' ? 2 : 1, character);
    return escaped;
}

void Show_First_Caption(Live_Control& control) {
    switch (Kind_Of(control)) {
        case Control_Kind::Text:
            control.text = control.row->caption;
            Show_Text(control);
            break;
        case Control_Kind::Combo:
            Set_Combo_Text(control, control.row->caption);
            break;
        case Control_Kind::Label:
        case Control_Kind::Frame:
        case Control_Kind::Button:
        case Control_Kind::Check:
        case Control_Kind::Option:
            Show_Caption(control, control.row->caption);
            break;
        default:
            break;
    }
}

void Take_Notice(Live_Control& control, WORD notice) {
    switch (Kind_Of(control)) {
        case Control_Kind::Text:
            if (notice == EN_CHANGE) Take_Typed(control);
            break;
        case Control_Kind::Combo:
            if (notice == CBN_EDITCHANGE && !control.is_setting) Narrow_Combo(control);
            break;
        case Control_Kind::List:
            if (notice == LBN_DBLCLK) Fire(control);
            break;
        case Control_Kind::Drive:
            if (notice == CBN_SELCHANGE) Fire(control);
            break;
        case Control_Kind::Folder:
            if (notice == LBN_DBLCLK) Walk_Folder_List(control);
            break;
        default:
            if (notice == BN_CLICKED) Take_Click(control);
    }
}

std::string Window_Text(HWND handle) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(handle)) + 1, L'\0');
    const int length = GetWindowTextW(handle, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return From_Wide_Lossy(text);
}

}  // namespace windows

using windows::Find_Live;
using windows::Live_Control;

void Set_Caption(Control_Ref control, std::string_view caption) {
    Live_Control* live = Find_Live(control);
    if (live == nullptr) return;
    switch (live->row->kind) {
        case Control_Kind::Menu:
            windows::Set_Menu_Caption(*live, caption);
            break;
        case Control_Kind::Label:
            // Setting the same caption anew would make it flicker.
            if (windows::Window_Text(live->handle) == caption) break;
            windows::Show_Caption(*live, caption);
            break;
        case Control_Kind::Frame:
        case Control_Kind::Button:
        case Control_Kind::Check:
        case Control_Kind::Option:
            windows::Show_Caption(*live, caption);
            break;
        default:
            break;
    }
}

void Set_Text(Control_Ref control, std::string_view text) {
    if (Live_Control* combo = Find_Live(control, Control_Kind::Combo)) {
        windows::Set_Combo_Text(*combo, text);
        return;
    }
    Live_Control* box = Find_Live(control, Control_Kind::Text);
    if (box == nullptr || box->text == text) return;
    box->text = text;
    windows::Show_Text(*box);
    windows::Call(box->row->handler);
}

std::string Text_Of(Control_Ref control) {
    const Live_Control* live = Find_Live(control);
    if (live == nullptr) return {};
    return live->row->kind == Control_Kind::Combo ? windows::Window_Text(live->handle) : live->text;
}

void Set_Enabled(Control_Ref control, bool enabled) {
    const Live_Control* live = Find_Live(control);
    if (live == nullptr) return;
    if (live->row->kind == Control_Kind::Menu) windows::Enable_Menu(*live, enabled);
    if (live->handle != nullptr) windows::Enable_Control(*live, enabled);
}

void Repaint(Control_Ref control) {
    const Live_Control* live = Find_Live(control);
    if (live == nullptr || live->handle == nullptr) return;
    RedrawWindow(live->handle, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void Set_Checked(Control_Ref control, bool checked) {
    Live_Control* live = Find_Live(control);
    if (live == nullptr || live->checked == checked) return;
    const bool is_option = live->row->kind == Control_Kind::Option;
    if (!is_option && live->row->kind != Control_Kind::Check) return;
    if (is_option && checked) {
        windows::Select_Option(*live);
    } else {
        windows::Show_Check(*live, checked);
    }
    if (checked || !is_option) windows::Call(live->row->handler);
}

bool Is_Checked(Control_Ref control) {
    const Live_Control* live = Find_Live(control);
    return live != nullptr && live->checked;
}

void Set_Transparent(Control_Ref control, bool transparent) {
    Live_Control* label = Find_Live(control, Control_Kind::Label);
    if (label == nullptr) return;
    label->transparent = transparent;
    InvalidateRect(label->handle, nullptr, TRUE);
}

void Set_Progress(Control_Ref control, const Progress& progress) {
    Live_Control* live = Find_Live(control, Control_Kind::Progress);
    if (live == nullptr) return;
    Progress& shown = live->progress;
    shown.minimum = progress.minimum;
    shown.maximum = std::max(progress.minimum, progress.maximum);
    shown.value = std::clamp(progress.value, shown.minimum, shown.maximum);
    SendMessageW(live->handle, PBM_SETRANGE32, static_cast<WPARAM>(shown.minimum), shown.maximum);
    SendMessageW(live->handle, PBM_SETPOS, static_cast<WPARAM>(shown.value), 0);
}

Progress Progress_Of(Control_Ref control) {
    const Live_Control* live = Find_Live(control, Control_Kind::Progress);
    return live != nullptr ? live->progress : Progress{0, 0, 0};
}

}  // namespace platform
