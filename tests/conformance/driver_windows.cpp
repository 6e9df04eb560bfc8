#include <gtest/gtest.h>
#include <utility>

#include "platform/windows/controls.h"
#include "platform/windows/live.h"
#include "platform/windows/program.h"
#include "platform/windows/text.h"
#include "tests/conformance/driver.h"

// The user's hand are the system's own mouse and keyboard, so that what the system keeps from a
// disabled window stays kept from it.
namespace driver {

const bool has_screen = true;

namespace {

using namespace platform;
using windows::Live_Control;

std::vector<Message> messages;

std::string Text_In(HWND window) {
    wchar_t text[1024];
    const int length = GetWindowTextW(window, text, 1024);
    return windows::From_Wide_Lossy({text, static_cast<std::size_t>(length)});
}

bool Is_Topmost(HWND window) {
    return (GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

Icon Icon_In(HWND box) {
    const LRESULT shown = SendMessageW(GetWindow(box, GW_CHILD), STM_GETICON, 0, 0);
    const auto is = [shown](LPCWSTR name) {
        return shown == reinterpret_cast<LRESULT>(LoadIconW(nullptr, name));
    };
    if (is(MAKEINTRESOURCEW(32516))) return Icon::Information;
    return is(MAKEINTRESOURCEW(32515)) ? Icon::Exclamation : Icon::Critical;
}

/// Answers a message box that has stood for long enough, as a user who reads it would.
void CALLBACK Answer(HWND, UINT, UINT_PTR, DWORD) {
    static HWND known = nullptr;
    static long long since = 0;
    DWORD process = 0;
    const HWND box = FindWindowW(L"#32770", nullptr);
    GetWindowThreadProcessId(box, &process);
    if (box == nullptr || process != ::GetCurrentProcessId()) return;
    if (std::exchange(known, box) != box) since = Clock();
    if (Clock() - since < 300) return;
    constexpr int Text_Id = 0xFFFF;
    messages.push_back(
        {Icon_In(box), Text_In(box), Text_In(GetDlgItem(box, Text_Id)), Is_Topmost(box)});
    known = nullptr;
    PostMessageW(box, WM_COMMAND, IDOK, 0);
}

void Press_At(HWND window, int x, int y, int times = 1, Mouse_Button button = Mouse_Button::Left) {
    // The bits of left, right and middle button follow each other.
    const DWORD down = DWORD{MOUSEEVENTF_LEFTDOWN} << 2 * static_cast<int>(button);
    // Out from under the others, without the focus, whose going would close a list.
    ::SetWindowPos(GetAncestor(window, GA_ROOT), nullptr, 0, 0, 0, 0,
                   SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    POINT place{x, y};
    ClientToScreen(window, &place);
    SetCursorPos(place.x, place.y);
    for (int i = 0; i < times; ++i) {
        mouse_event(down, 0, 0, 0, 0);
        mouse_event(down << 1, 0, 0, 0, 0);
    }
    Advance(30);
}

void Click_Entry(HWND list, int index, int times = 1) {
    RECT place;
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&place));
    Press_At(list, place.left + 5, (place.top + place.bottom) / 2, times);
}

void Strike(WORD key) {
    for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}})
        keybd_event(static_cast<BYTE>(key), 0, flags, 0);
    Advance(20);
}

class Set_Up final : public testing::Environment {
    void SetUp() override {
        windows::Set_Up();
        SetTimer(nullptr, 0, 10, Answer);
    }
};
const auto* const environment = testing::AddGlobalTestEnvironment(new Set_Up);

}  // namespace

void Start(Handler start) {
    messages.clear();
    windows::Begin(start);
    Advance(50);
}

void Advance(int milliseconds) {
    const long long end = Clock() + milliseconds;
    for (long long now = Clock(); Running() && now < end; now = Clock())
        windows::Serve(static_cast<unsigned long>(end - now));
}

void Set_Surroundings(const std::string&) {}

void Click(Control_Ref control) {
    const HWND window = windows::Find_Window(*control.window)->handle;
    if (control.window->controls[control.index].kind == Control_Kind::Menu) {
        const auto id = static_cast<WPARAM>(windows::First_Id) + control.index;
        if (IsWindowEnabled(window)) PostMessageW(window, WM_COMMAND, id, 0);
        return Advance(30);
    }
    const RECT& place = windows::Find_Live(control)->place;
    Press_At(window, place.left + 8, place.top + 8);
}

void Double_Click(Control_Ref list) {
    Click_Entry(windows::Find_Live(list)->handle, Selected_Index(list), 2);
}

void Pick(Control_Ref list_or_combo, int index) {
    const Live_Control& live = *windows::Find_Live(list_or_combo);
    if (live.list == nullptr) return Click_Entry(live.handle, index);
    RECT box;
    GetClientRect(live.handle, &box);
    Press_At(live.handle, box.right - 5, box.bottom / 2);
    Click_Entry(live.list, index);
}

void Type(Control_Ref combo, const std::string& text) {
    const HWND edit = GetWindow(windows::Find_Live(combo)->handle, GW_CHILD);
    Press_At(edit, 8, 5);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    Type_Keys(*combo.window, text);
    Strike(VK_TAB);
    EXPECT_NE(GetFocus(), edit);
}

void Press(const Window& window, Mouse_Button button, int x, int y) {
    Press_At(windows::Find_Window(window)->handle, x, y, 1, button);
}

void Resize(const Window& window, int client_width, int client_height) {
    const HWND handle = windows::Find_Window(window)->handle;
    if ((GetWindowLongW(handle, GWL_STYLE) & WS_THICKFRAME) == 0) return;
    RECT client, frame;
    GetClientRect(handle, &client);
    GetWindowRect(handle, &frame);
    ::SetWindowPos(handle, nullptr, 0, 0, frame.right - frame.left + client_width - client.right,
                   frame.bottom - frame.top + client_height - client.bottom,
                   SWP_NOMOVE | SWP_NOZORDER);
    Advance(50);
}

void Do(Deed deed, const Window& window) {
    Advance(300);  // The window manager's news of what was done before may still be on its way.
    constexpr WPARAM commands[] = {SC_MINIMIZE, SC_RESTORE, SC_CLOSE};
    const HWND handle = windows::Find_Window(window)->handle;
    PostMessageW(handle, WM_SYSCOMMAND, commands[deed], 0);
    Advance(200);
}

void Key(int code, bool down) {
    const UINT scan = MapVirtualKeyW(static_cast<UINT>(code), MAPVK_VK_TO_VSC);
    keybd_event(static_cast<BYTE>(code), static_cast<BYTE>(scan), down ? 0 : DWORD{KEYEVENTF_KEYUP},
                0);
    Advance(30);
}

void Press_Key(const Window& window, Stroke key) {
    SetForegroundWindow(windows::Find_Window(window)->handle);
    constexpr WORD keys[] = {VK_TAB, VK_RETURN, VK_ESCAPE, VK_SPACE, VK_DOWN};
    Strike(keys[key]);
}

void Type_Keys(const Window&, const std::string& text) {
    for (const wchar_t character : windows::To_Wide(text)) {
        PostMessageW(GetFocus(), WM_CHAR, character, 0);
        Advance(20);
    }
}

std::string Focus(const Window& window) {
    for (const Live_Control& control : windows::Find_Window(window)->controls) {
        const HWND focus = GetFocus();
        if (focus != nullptr && (control.handle == focus || IsChild(control.handle, focus)))
            return control.row->name;
    }
    return "";
}

// Wine keeps no annotations, so this is what the system tells without one: the window's text.
std::optional<Spoken> Spoken_Of(Control_Ref control) {
    const Live_Control& live = *windows::Find_Live(control);
    if (live.caption.empty() || live.handle == nullptr || *live.row->spoken != '\0') return {};
    return Spoken{Text_In(live.handle), true};
}

Frame Frame_Of(const Window& window) {
    const HWND handle = windows::Find_Window(window)->handle;
    RECT frame;
    GetWindowRect(handle, &frame);
    return {frame.left, frame.top, Is_Topmost(handle)};
}

std::vector<Message> Take_Messages() {
    return std::exchange(messages, {});
}

Colour Pixel(const Window& window, int x, int y) {
    Repaint(window);
    const HWND handle = windows::Find_Window(window)->handle;
    const HDC dc = GetDC(handle);
    const COLORREF colour = GetPixel(dc, x, y);
    ReleaseDC(handle, dc);
    return {GetRValue(colour), GetGValue(colour), GetBValue(colour)};
}

}  // namespace driver
