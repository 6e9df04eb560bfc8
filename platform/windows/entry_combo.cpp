#include <algorithm>
#include <numeric>

#include "platform/windows/controls.h"
#include "platform/windows/measures.h"
#include "platform/windows/text.h"

namespace platform::windows {

namespace {

constexpr int Rows_Shown = 14;

Live_Control* open_combo = nullptr;

bool Is_Open(const Live_Control& combo) {
    return open_combo == &combo;
}

HWND Edit_Of(const Live_Control& combo) {
    return GetWindow(combo.handle, GW_CHILD);
}

/// Of the whole list, so that narrowing does not change it. Measuring takes long: only the longest
/// entries by count are measured, and those nearly as long.
int List_Width(const Live_Control& combo) {
    constexpr std::size_t Nearly = 3;
    std::size_t longest = 0;
    for (const std::string& entry : combo.entries)
        longest = std::max(longest, entry.size());
    LONG width = 0;
    for (const std::string& entry : combo.entries) {
        if (entry.size() + Nearly < longest) continue;
        width = std::max(width, Text_Extent(Default_Font(), To_Wide(entry)).cx);
    }
    return width + GetSystemMetrics(SM_CXVSCROLL) + 12;
}

/// Below the combo box, or above it where the screen ends.
void Place_List(const Live_Control& combo) {
    RECT box;
    GetWindowRect(combo.handle, &box);
    const auto row = static_cast<int>(SendMessageW(combo.list, LB_GETITEMHEIGHT, 0, 0));
    const int rows = std::clamp(static_cast<int>(combo.matches.size()), 1, Rows_Shown);
    const int height = rows * row + 2;
    const int width = std::max(static_cast<int>(box.right - box.left), List_Width(combo));
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    GetMonitorInfoW(MonitorFromWindow(combo.handle, MONITOR_DEFAULTTONEAREST), &screen);
    const bool fits = box.bottom + height <= screen.rcWork.bottom;
    const LONG left =
        std::max(screen.rcWork.left, std::min<LONG>(box.left, screen.rcWork.right - width));
    const auto topmost = reinterpret_cast<HWND>(LONG_PTR{-1});
    ::SetWindowPos(combo.list, topmost, left, fits ? box.bottom : box.top - height, width, height,
                   SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void Open_List(Live_Control& combo) {
    open_combo = &combo;
    SendMessageW(combo.list, LB_SETCOUNT, combo.matches.size(), 0);
    const auto picked = std::find(combo.matches.begin(), combo.matches.end(),
                                  static_cast<std::size_t>(combo.selected));
    const bool has_pick = combo.selected >= 0 && picked != combo.matches.end();
    SendMessageW(combo.list, LB_SETCURSEL,
                 has_pick ? static_cast<WPARAM>(picked - combo.matches.begin()) : WPARAM(-1), 0);
    Place_List(combo);
}

void Match_All(Live_Control& combo) {
    combo.matches.resize(combo.entries.size());
    std::iota(combo.matches.begin(), combo.matches.end(), std::size_t{0});
}

void Open_Whole_List(Live_Control& combo) {
    Match_All(combo);
    SetFocus(Edit_Of(combo));
    if (!combo.matches.empty()) Open_List(combo);
}

/// An entry of the list, by its place there, into the text box.
void Pick(Live_Control& combo, int place) {
    if (place < 0 || place >= static_cast<int>(combo.matches.size())) return;
    const std::size_t entry = combo.matches[static_cast<std::size_t>(place)];
    Take_Pick(combo, static_cast<int>(entry));
    Put_Text(combo);
    SendMessageW(Edit_Of(combo), EM_SETSEL, 0, -1);
}

/// The arrow keys pick what they reach, whether the list is open or not.
void Move(Live_Control& combo, int steps) {
    if (!Is_Open(combo)) Match_All(combo);
    const auto found = std::find(combo.matches.begin(), combo.matches.end(),
                                 static_cast<std::size_t>(combo.selected));
    const bool has_pick = combo.selected >= 0 && found != combo.matches.end();
    const int last = static_cast<int>(combo.matches.size()) - 1;
    const int at =
        has_pick ? static_cast<int>(found - combo.matches.begin()) + steps : (steps > 0 ? 0 : last);
    const int place = std::clamp(at, 0, std::max(last, 0));
    Pick(combo, place);
    if (Is_Open(combo)) SendMessageW(combo.list, LB_SETCURSEL, static_cast<WPARAM>(place), 0);
}

bool Take_Key(Live_Control& combo, WPARAM key) {
    switch (key) {
        case VK_DOWN:
            Move(combo, 1);
            return true;
        case VK_UP:
            Move(combo, -1);
            return true;
        case VK_NEXT:
            Move(combo, Rows_Shown - 1);
            return true;
        case VK_PRIOR:
            Move(combo, 1 - Rows_Shown);
            return true;
        case VK_F4:
            Is_Open(combo) ? Close_List(combo) : Open_Whole_List(combo);
            return true;
        case VK_RETURN:
            Take_Return(combo);
            [[fallthrough]];
        case VK_ESCAPE:
            Close_List(combo);
            return true;
        default:
            return false;
    }
}

LRESULT CALLBACK Edit_Procedure(HWND edit, UINT message, WPARAM first, LPARAM second, UINT_PTR,
                                DWORD_PTR reference) {
    Live_Control& combo = *reinterpret_cast<Live_Control*>(reference);
    const LRESULT result = 0;
    switch (message) {
        case WM_GETDLGCODE:
            if (Is_Open(combo) && first != VK_TAB) {
                return DefSubclassProc(edit, message, first, second) | DLGC_WANTALLKEYS;
            }
            break;
        case WM_KEYDOWN:
            if (Take_Key(combo, first)) return result;
            break;
        case WM_SYSKEYDOWN:
            if (first == VK_DOWN || first == VK_UP) {
                Take_Key(combo, VK_F4);
                return result;
            }
            break;
        case WM_CHAR:
            if (first == VK_RETURN || first == VK_ESCAPE || first == VK_TAB) return result;
            break;
        case WM_MOUSEWHEEL:
            if (Is_Open(combo)) return SendMessageW(combo.list, message, first, second);
            break;
        case WM_SETFOCUS:
        case WM_LBUTTONUP: {
            const LRESULT done = DefSubclassProc(edit, message, first, second);
            if (Shows_Hint(combo)) SendMessageW(edit, EM_SETSEL, 0, -1);
            return done;
        }
        case WM_KILLFOCUS:
            Close_List(combo);
            SendMessageW(edit, EM_SETSEL, 0, 0);  // a selection looks like the focus
            break;
        case EM_SETSEL:
            // All of a text that is longer than the box: its start stays in view.
            if (first == 0 && second == -1) {
                return DefSubclassProc(edit, message, WPARAM(GetWindowTextLengthW(edit)), 0);
            }
            break;
        default:
            break;
    }
    return DefSubclassProc(edit, message, first, second);
}

/// The arrow at the side: the text box covers the rest.
LRESULT CALLBACK Box_Procedure(HWND box, UINT message, WPARAM first, LPARAM second, UINT_PTR,
                               DWORD_PTR reference) {
    Live_Control& combo = *reinterpret_cast<Live_Control*>(reference);
    if (message != WM_LBUTTONDOWN && message != WM_LBUTTONDBLCLK) {
        return DefSubclassProc(box, message, first, second);
    }
    Is_Open(combo) ? Close_List(combo) : Open_Whole_List(combo);
    return 0;
}

LRESULT CALLBACK List_Procedure(HWND list, UINT message, WPARAM first, LPARAM second, UINT_PTR,
                                DWORD_PTR reference) {
    Live_Control& combo = *reinterpret_cast<Live_Control*>(reference);
    if (message == WM_MOUSEACTIVATE) return MA_NOACTIVATE;
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
        const LRESULT item = SendMessageW(list, LB_ITEMFROMPOINT, 0, second);
        if (HIWORD(item) == 0) Pick(combo, LOWORD(item));
        Close_List(combo);
        return 0;
    }
    return DefSubclassProc(list, message, first, second);
}

}  // namespace

void Set_Up_Combo(Live_Control& combo) {
    const auto reference = reinterpret_cast<DWORD_PTR>(&combo);
    combo.list = CreateWindowExW(
        WS_EX_TOOLWINDOW | WS_EX_TOPMOST | WS_EX_NOACTIVATE, L"LISTBOX", L"",
        WS_CHILD | WS_BORDER | WS_VSCROLL | LBS_NODATA | LBS_OWNERDRAWFIXED | LBS_NOINTEGRALHEIGHT,
        0, 0, 0, 0, combo.Holder().handle, nullptr, GetModuleHandleW(nullptr), nullptr);
    // As the system's own combo box does it: the list asks for its drawing where it was made, and
    // is cut off by no window.
    SetParent(combo.list, nullptr);
    const LONG height = Text_Extent(Default_Font(), L"X").cy + 1;
    SendMessageW(combo.list, LB_SETITEMHEIGHT, 0, height);
    SetWindowSubclass(combo.handle, Box_Procedure, 0, reference);
    SetWindowSubclass(Edit_Of(combo), Edit_Procedure, 0, reference);
    SetWindowSubclass(combo.list, List_Procedure, 0, reference);
}

void Show_Combo_Text(Live_Control& combo) {
    Close_List(combo);
    Put_Text(combo);
    SendMessageW(Edit_Of(combo), EM_SETSEL, 0, 0);
}

void Narrow_Combo(Live_Control& combo) {
    Take_Typed(combo, Window_Text(combo.handle));
    if (combo.matches.empty()) {
        Close_List(combo);
    } else {
        Open_List(combo);
    }
}

void Close_List_By_Press(HWND pressed) {
    if (open_combo == nullptr || pressed == open_combo->list || pressed == open_combo->handle ||
        pressed == Edit_Of(*open_combo)) {
        return;
    }
    Close_List(*open_combo);
}

void Close_List(Live_Control& combo) {
    if (!Is_Open(combo)) return;
    open_combo = nullptr;
    ShowWindow(combo.list, SW_HIDE);
}

void Draw_Entry(const Live_Window& window, const DRAWITEMSTRUCT& item) {
    const auto combo =
        std::find_if(window.controls.begin(), window.controls.end(),
                     [&item](const Live_Control& each) { return each.list == item.hwndItem; });
    if (combo == window.controls.end() || item.itemID >= combo->matches.size()) return;
    const bool is_selected = (item.itemState & ODS_SELECTED) != 0;
    SelectObject(item.hDC, Default_Font());
    SetTextColor(item.hDC, GetSysColor(is_selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    SetBkColor(item.hDC, GetSysColor(is_selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    const std::wstring text = To_Wide(combo->entries[combo->matches[item.itemID]]);
    ExtTextOutW(item.hDC, item.rcItem.left + 3, item.rcItem.top, ETO_OPAQUE | ETO_CLIPPED,
                &item.rcItem, text.data(), static_cast<UINT>(text.size()), nullptr);
}

}  // namespace platform::windows
