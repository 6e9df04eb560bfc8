#include <string_view>

#include "platform/windows/canvas.h"
#include "platform/windows/controls.h"
#include "platform/windows/measures.h"
#include "platform/windows/text.h"

namespace platform::windows {

namespace {

/// Class and style of a kind's native window.
struct Native_Kind {
    const wchar_t* class_name;
    DWORD style;
    DWORD extended_style = 0;
};

Native_Kind Text_Kind(const Control& row) {
    DWORD style = WS_TABSTOP | ES_READONLY;
    style |= row.multi_line ? ES_MULTILINE | WS_VSCROLL : ES_AUTOHSCROLL;
    if (row.centred) style |= ES_CENTER;
    return {L"EDIT", style, WS_EX_CLIENTEDGE};
}

/// A label breaks its caption into lines where it is high enough for two.
Native_Kind Label_Kind(const Live_Control& control) {
    const int line = Text_Extent(control.font != nullptr ? control.font : Default_Font(), L"X").cy;
    const bool has_lines = control.place.bottom - control.place.top >= 2 * line;
    return {L"STATIC", SS_NOPREFIX | (has_lines ? DWORD{SS_LEFT} : DWORD{SS_LEFTNOWORDWRAP})};
}

Native_Kind Kind_Of(const Live_Control& control) {
    constexpr DWORD list_style = WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT;
    constexpr DWORD combo_style = WS_TABSTOP | WS_VSCROLL;
    switch (control.row->kind) {
        case Control_Kind::Frame:
            // It paints nothing but its edge: the window shows through it.
            return {L"BUTTON", BS_GROUPBOX, WS_EX_TRANSPARENT};
        case Control_Kind::Label:
            return Label_Kind(control);
        case Control_Kind::Button:
            return {L"BUTTON", WS_TABSTOP | BS_PUSHBUTTON};
        case Control_Kind::Text:
            return Text_Kind(*control.row);
        case Control_Kind::Combo:
            return {L"COMBOBOX", combo_style | CBS_DROPDOWN | CBS_AUTOHSCROLL};
        case Control_Kind::Check:
            return {L"BUTTON", WS_TABSTOP | BS_AUTOCHECKBOX};
        case Control_Kind::Option:
            return {L"BUTTON", WS_TABSTOP | BS_AUTORADIOBUTTON};
        case Control_Kind::Progress:
            return {PROGRESS_CLASSW, 0};
        case Control_Kind::Drive:
            return {L"COMBOBOX", combo_style | CBS_DROPDOWNLIST};
        case Control_Kind::List:
        case Control_Kind::Folder:
            return {L"LISTBOX", list_style, WS_EX_CLIENTEDGE};
        default:
            return {nullptr, 0};
    }
}

/// In pixels of the client area, also inside a frame.
RECT Place_Of(const Live_Window& window, const Control& row) {
    Box at = row.at;
    for (const Live_Control& control : window.controls) {
        if (control.row->kind == Control_Kind::Frame &&
            std::string_view(control.row->name) == row.in) {
            at.left += control.row->at.left;
            at.top += control.row->at.top;
        }
    }
    return To_Pixels(at);
}

/// A label ends where a text box begins below it, whose edge it would paint over.
LONG Bottom_Of(const Live_Control& control) {
    const RECT& place = control.place;
    if (control.row->kind != Control_Kind::Label) return place.bottom;
    for (const Control& row : control.Holder().table.controls) {
        if (row.kind != Control_Kind::Text) continue;
        const RECT text = Place_Of(control.Holder(), row);
        RECT shared;
        const bool meets = IntersectRect(&shared, &place, &text);
        if (meets && text.top > (place.top + place.bottom) / 2) return text.top;
    }
    return place.bottom;
}

/// When the key goes up: a window that waits for keys would take one that is down for its own.
LRESULT CALLBACK List_Procedure(HWND handle, UINT message, WPARAM first, LPARAM second, UINT_PTR,
                                DWORD_PTR reference) {
    const LRESULT result = DefSubclassProc(handle, message, first, second);
    const bool opens = message == WM_KEYUP && (first == VK_RETURN || first == VK_SPACE);
    if (opens) Take_Notice(*reinterpret_cast<Live_Control*>(reference), LBN_DBLCLK);
    return result;
}

/// A text of several lines would keep Tab and Escape to itself.
LRESULT CALLBACK Lines_Procedure(HWND handle, UINT message, WPARAM first, LPARAM second, UINT_PTR,
                                 DWORD_PTR) {
    return message == WM_GETDLGCODE ? DLGC_WANTARROWS
                                    : DefSubclassProc(handle, message, first, second);
}

void Build_Control(Live_Control& control, bool starts_group) {
    const Native_Kind kind = Kind_Of(control);
    if (kind.class_name == nullptr) return;
    const Control& row = *control.row;
    const Live_Window& window = control.Holder();
    const RECT& place = control.place;
    const auto index = &control - window.controls.data();
    const std::wstring name = To_Wide(Spoken_Name(window.table, static_cast<std::size_t>(index)));
    control.handle = CreateWindowExW(
        kind.extended_style, kind.class_name, name.c_str(),
        kind.style | WS_CHILD | WS_VISIBLE | (starts_group ? DWORD{WS_GROUP} : 0), place.left,
        place.top, place.right - place.left, Bottom_Of(control) - place.top, window.handle,
        reinterpret_cast<HMENU>(First_Id + index), GetModuleHandleW(nullptr), nullptr);
    const HFONT font = control.font != nullptr ? control.font : Default_Font();
    SendMessageW(control.handle, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    if (row.kind == Control_Kind::Combo) Set_Up_Combo(control);
    if (row.kind == Control_Kind::Drive) Fill_Drives(control);
    if (row.kind == Control_Kind::Folder) Set_Up_Folder_List(control);
    if (!name.empty()) Tell_Name(control.handle, name);
    const auto reference = reinterpret_cast<DWORD_PTR>(&control);
    if (row.kind == Control_Kind::List) {
        SetWindowSubclass(control.handle, List_Procedure, 0, reference);
    } else if (row.multi_line) {
        SetWindowSubclass(control.handle, Lines_Procedure, 0, reference);
    }
    const bool has_text = row.kind == Control_Kind::Text || row.kind == Control_Kind::Combo;
    if (has_text) {
        control.Show_Text();
    } else if (!control.caption.empty()) {
        control.Show_Caption();
    }
    EnableWindow(control.handle, row.enabled);
}

}  // namespace

void Build_Controls(Live_Window& window) {
    bool in_options = false;
    for (const std::size_t index : Tab_Order(window.table)) {
        Live_Control& control = window.controls[index];
        const Control& row = *control.row;
        control.place = Place_Of(window, row);
        control.font = Make_Font(row.font);
        const bool is_option = row.kind == Control_Kind::Option;
        Build_Control(control, !is_option || !in_options);
        in_options = is_option;
    }
}

void Tell_Name(HWND handle, const std::wstring& name) {
    static IAccPropServices* const services = [] {
        void* made = nullptr;
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                         &made);
        return static_cast<IAccPropServices*>(made);
    }();
    if (services == nullptr) return;
    constexpr auto client = static_cast<DWORD>(OBJID_CLIENT);
    for (const HWND part : {handle, GetWindow(handle, GW_CHILD)}) {
        if (part == nullptr) continue;
        if (name.empty()) {
            services->ClearHwndProps(part, client, CHILDID_SELF, &PROPID_ACC_NAME, 1);
        } else {
            services->SetHwndPropStr(part, client, CHILDID_SELF, PROPID_ACC_NAME, name.c_str());
        }
    }
}

Live_Control* Control_Of_Id(Live_Window& window, int id) {
    const auto index = static_cast<std::size_t>(id - First_Id);
    return index < window.controls.size() ? &window.controls[index] : nullptr;
}

HBRUSH Back_Brush(Live_Window& window, HWND handle, HDC dc) {
    static const HBRUSH grey = CreateSolidBrush(Native_Colour(Window{}.back_colour));
    const Live_Control* control = Control_Of_Id(window, GetDlgCtrlID(handle));
    if (control != nullptr && control->row->kind == Control_Kind::Text) return nullptr;
    SetBkMode(dc, TRANSPARENT);
    if (control == nullptr || control->row->kind != Control_Kind::Label) return window.back_brush;
    SetTextColor(dc, Native_Colour(control->row->colour));
    if (!control->transparent) return grey;
    Paint_Behind(*control, dc);
    return static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
}

}  // namespace platform::windows
