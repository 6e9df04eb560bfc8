#include "platform/windows/controls.h"

#include "platform/windows/measures.h"
#include "platform/windows/text.h"

namespace platform::windows {

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

}  // namespace

std::wstring Escaped_Caption(std::string_view caption) {
    std::wstring escaped;
    for (const wchar_t character : To_Wide(caption))
        escaped.append(character == L'&' ? 2 : 1, character);
    return escaped;
}

Live_Window& Live_Control::Holder() const {
    return *static_cast<Live_Window*>(window);
}

/// A caption a little too long for its control is condensed rather than cut.
void Live_Control::Show_Caption() {
    if (row->kind == Control_Kind::Menu) return Show_Menu_Caption(*this);
    const bool is_label = row->kind == Control_Kind::Label;
    const std::wstring shown = To_Wide(caption);
    const auto old = reinterpret_cast<HFONT>(SendMessageW(handle, WM_GETFONT, 0, 0));
    HFONT now = font != nullptr ? font : Default_Font();
    const int room = Room_For_Caption(*this);
    const bool is_one_line =
        (GetWindowLongW(handle, GWL_STYLE) & SS_TYPEMASK) != SS_LEFT || !is_label;
    if (is_one_line && Text_Extent(now, shown).cx > room) now = Make_Narrow_Font(now, shown, room);
    SendMessageW(handle, WM_SETFONT, reinterpret_cast<WPARAM>(now), FALSE);
    if (old != now && old != font && old != Default_Font()) DeleteObject(old);
    SetWindowTextW(handle, is_label ? shown.c_str() : Escaped_Caption(caption).c_str());
}

void Live_Control::Show_Text() {
    if (row->kind == Control_Kind::Text) Put_Text(*this);
    if (row->kind == Control_Kind::Combo) Show_Combo_Text(*this);
}

/// The control that had the focus first has it again, whatever has been disabled after it.
void Live_Control::Show_Enabled() {
    if (row->kind == Control_Kind::Menu) Enable_Menu(*this);
    if (handle == nullptr) return;
    Live_Window& holder = Holder();
    HWND focus = GetFocus();
    HWND& kept = IsChild(holder.handle, focus) ? focus : holder.focus;
    const bool has_focus = kept == handle || IsChild(handle, kept);
    EnableWindow(handle, enabled);
    if (enabled && holder.lost_focus == handle) {
        holder.lost_focus = nullptr;
        kept = handle;
    } else if (!enabled && has_focus) {
        if (holder.lost_focus == nullptr) holder.lost_focus = handle;
        kept = GetNextDlgTabItem(holder.handle, handle, FALSE);
    } else {
        return;
    }
    if (&kept == &focus) SetFocus(kept);
}

void Live_Control::Show_Checked() {
    SendMessageW(handle, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
}

void Live_Control::Show_Entries() {
    if (row->kind != Control_Kind::List) return;
    SendMessageW(handle, WM_SETREDRAW, FALSE, 0);
    SendMessageW(handle, LB_RESETCONTENT, 0, 0);
    for (const std::string& entry : entries)
        SendMessageW(handle, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(To_Wide(entry).c_str()));
    SendMessageW(handle, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(handle, nullptr, TRUE);
}

void Live_Control::Show_Progress() {
    SendMessageW(handle, PBM_SETRANGE32, static_cast<WPARAM>(progress.minimum), progress.maximum);
    SendMessageW(handle, PBM_SETPOS, static_cast<WPARAM>(progress.value), 0);
}

void Live_Control::Repaint() {
    if (handle == nullptr) return;
    RedrawWindow(handle, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void Take_Notice(Live_Control& control, WORD notice) {
    const auto picked = [&control](UINT question) {
        Take_Pick(control, static_cast<int>(SendMessageW(control.handle, question, 0, 0)));
    };
    switch (Kind_Of(control)) {
        case Control_Kind::Combo:
            if (notice == CBN_EDITCHANGE && !control.is_setting) Narrow_Combo(control);
            break;
        case Control_Kind::List:
            picked(LB_GETCURSEL);
            if (notice == LBN_DBLCLK) Fire(control);
            break;
        case Control_Kind::Drive:
            picked(CB_GETCURSEL);
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

void Put_Text(Live_Control& control) {
    control.is_setting = true;
    SetWindowTextW(control.handle, To_Wide(control.text).c_str());
    control.is_setting = false;
}

}  // namespace platform::windows
