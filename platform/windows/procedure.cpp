#include <algorithm>

#include "platform/windows/canvas.h"
#include "platform/windows/controls.h"
#include "platform/windows/program.h"

namespace platform::windows {

namespace {

/// Ticks while a loop of the system's own runs, for a menu or for a window that is being dragged.
constexpr UINT_PTR Heartbeat = 1;

Live_Window* Window_Of(HWND handle) {
    return reinterpret_cast<Live_Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
}

/// Labels, frames and disabled controls let a press through to the window behind them.
bool Is_Covered(const Live_Window& window, POINT place) {
    return std::any_of(window.controls.begin(), window.controls.end(), [&](const auto& control) {
        const Control_Kind kind = control.row->kind;
        return kind != Control_Kind::Menu && kind != Control_Kind::Timer &&
               PtInRect(&control.place, place);
    });
}

void Take_Press(const Live_Window& window, Mouse_Button button, LPARAM parameter) {
    const POINT place{static_cast<short>(LOWORD(parameter)), static_cast<short>(HIWORD(parameter))};
    if (Is_Covered(window, place)) return;
    RECT client;
    GetClientRect(window.handle, &client);
    window.Take_Press(button, place.x, place.y, {client.right, client.bottom});
}

void Take_Command(Live_Window& window, WPARAM parameter, bool from_control) {
    if (LOWORD(parameter) == IDCANCEL) return Take_Escape(window);  // by the system's own number
    Live_Control* control = Control_Of_Id(window, LOWORD(parameter));
    if (control == nullptr) return;
    if (!from_control) return Fire(*control);
    if (window.table.takes_keys) SetFocus(window.handle);
    Take_Notice(*control, HIWORD(parameter));
}

/// The button that has the focus is the one that the Enter key presses.
LRESULT Default_Button(const Live_Window& window) {
    const HWND focus = GetFocus();
    const int id = focus != nullptr && GetParent(focus) == window.handle ? GetDlgCtrlID(focus) : 0;
    const bool is_button = (SendMessageW(focus, WM_GETDLGCODE, 0, 0) &
                            (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
    return is_button ? MAKELRESULT(id, DC_HASDEFID) : 0;
}

void Keep_Focus(Live_Window& window) {
    const HWND focus = GetFocus();
    if (IsChild(window.handle, focus)) window.focus = focus;
}

void Give_Focus(const Live_Window& window) {
    if (window.table.takes_keys) return;
    HWND focus = window.focus;
    if (focus == nullptr) focus = GetNextDlgTabItem(window.handle, nullptr, FALSE);
    if (focus != nullptr) SetFocus(focus);
}

/// False if the message is not for us.
bool Take_Mouse_And_Keys(Live_Window& window, UINT message, WPARAM first, LPARAM second) {
    switch (message) {
        case WM_LBUTTONDOWN:
            Take_Press(window, Mouse_Button::Left, second);
            return true;
        case WM_RBUTTONDOWN:
            Take_Press(window, Mouse_Button::Right, second);
            return true;
        case WM_MBUTTONDOWN:
            Take_Press(window, Mouse_Button::Middle, second);
            return true;
        case WM_MOUSEWHEEL:
            window.Take_Wheel(GET_WHEEL_DELTA_WPARAM(first));
            return true;
        case WM_COMMAND:
            Take_Command(window, first, second != 0);
            return true;
        case WM_SETFOCUS:
            Give_Focus(window);
            return true;
        default:
            return false;
    }
}

bool Take_Loop(const Live_Window& window, UINT message) {
    switch (message) {
        case WM_ENTERMENULOOP:
        case WM_ENTERSIZEMOVE:
            SetTimer(window.handle, Heartbeat, USER_TIMER_MINIMUM, nullptr);
            return true;
        case WM_EXITMENULOOP:
        case WM_EXITSIZEMOVE:
            KillTimer(window.handle, Heartbeat);
            return true;
        case WM_TIMER:
            Run_Due_Timers();
            return true;
        default:
            return false;
    }
}

LRESULT Take(Live_Window& window, UINT message, WPARAM first, LPARAM second) {
    switch (message) {
        case WM_PAINT:
            Paint_Canvas(window);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_SIZE:
            if (window.was_shown && first != SIZE_MINIMIZED) Fit_Canvas(window);
            // While it was minimised it could not hand the focus on.
            if (first != SIZE_MINIMIZED && GetFocus() == window.handle) Give_Focus(window);
            window.Report_Size();
            return 0;
        case WM_SYSCOMMAND:
            if ((first & 0xFFF0) == SC_MINIMIZE) Keep_Focus(window);
            break;
        case WM_CLOSE:
            On_Event([&window] { window.Dismiss(); });
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(first) == WA_INACTIVE) Keep_Focus(window);
            break;
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORSTATIC: {
            const HBRUSH brush =
                Back_Brush(window, reinterpret_cast<HWND>(second), reinterpret_cast<HDC>(first));
            if (brush != nullptr) return reinterpret_cast<LRESULT>(brush);
            break;
        }
        case WM_DRAWITEM:
            Draw_Entry(window, *reinterpret_cast<const DRAWITEMSTRUCT*>(second));
            return TRUE;
        case DM_GETDEFID:
            return Default_Button(window);
        default:
            if (Take_Mouse_And_Keys(window, message, first, second)) return 0;
            if (Take_Loop(window, message)) return 0;
    }
    return DefWindowProcW(window.handle, message, first, second);
}

LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM first, LPARAM second) {
    if (message == WM_NCCREATE) {
        auto* window = static_cast<Live_Window*>(
            reinterpret_cast<const CREATESTRUCTW*>(second)->lpCreateParams);
        window->handle = handle;
        SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
    }
    Live_Window* window = Window_Of(handle);
    return window != nullptr ? Take(*window, message, first, second)
                             : DefWindowProcW(handle, message, first, second);
}

bool Takes_Keys(HWND top) {
    return std::ranges::any_of(Loaded_Windows(), [top](const auto* window) {
        return static_cast<const Live_Window*>(window)->handle == top && window->table.takes_keys;
    });
}

}  // namespace

const wchar_t* Window_Class() {
    static const ATOM atom = [] {
        const HINSTANCE program = GetModuleHandleW(nullptr);
        WNDCLASSEXW description{};
        description.cbSize = sizeof description;
        description.lpfnWndProc = Procedure;
        description.hInstance = program;
        description.hIcon = LoadIconW(program, MAKEINTRESOURCEW(1));
        description.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
        description.lpszClassName = L"SkerrandWindow";
        return RegisterClassExW(&description);
    }();
    return MAKEINTATOM(atom);
}

void Dispatch(MSG& message) {
    if (message.message == WM_LBUTTONDOWN || message.message == WM_NCLBUTTONDOWN) {
        Close_List_By_Press(message.hwnd);
    }
    const HWND top = GetAncestor(message.hwnd, GA_ROOT);
    if (top != nullptr && !Takes_Keys(top) && IsDialogMessageW(top, &message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

}  // namespace platform::windows
