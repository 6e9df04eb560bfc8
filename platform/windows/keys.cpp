#include "platform/keys.h"

#include <array>

#include "platform/windows/program.h"

// The keyboard tells each key's way down and up itself, whoever has the focus. The system's own
// answer to "was it pressed" goes to the program that asks first, and the simulator asks too.
namespace platform {

namespace {

/// By code, as `GetAsyncKeyState` tells it.
std::array<std::uint16_t, Last_Key_Code + 1> keys{};

/// The mouse buttons and the cancel key, which no program has a reason to ask for all the time.
constexpr int Last_Mouse_Code = VK_XBUTTON2;

void Note(int code, bool down) {
    std::uint16_t& key = keys[static_cast<std::size_t>(code)];
    if (!down) {
        key &= Key_Was_Pressed;
    } else if (key < Key_Down) {
        key = Key_Down | Key_Was_Pressed;  // a key that is held repeats nothing
    }
}

bool Is_Down(int code) {
    return keys[static_cast<std::size_t>(code)] >= Key_Down;
}

/// A key of a pair, and the code for both, which is down as long as one of them is.
void Note_Pair(int both, int left, int right, bool is_right, bool down) {
    Note(is_right ? right : left, down);
    Note(both, Is_Down(left) || Is_Down(right));
}

/// The digits of the keypad come as what they are without the Num Lock.
int Keypad_Code(int code, bool is_extended) {
    struct Keypad_Key {
        int plain, digit;
    };
    constexpr Keypad_Key Keypad[] = {
        {VK_INSERT, VK_NUMPAD0}, {VK_END, VK_NUMPAD1},   {VK_DOWN, VK_NUMPAD2},
        {VK_NEXT, VK_NUMPAD3},   {VK_LEFT, VK_NUMPAD4},  {VK_CLEAR, VK_NUMPAD5},
        {VK_RIGHT, VK_NUMPAD6},  {VK_HOME, VK_NUMPAD7},  {VK_UP, VK_NUMPAD8},
        {VK_PRIOR, VK_NUMPAD9},  {VK_DELETE, VK_DECIMAL}};
    const bool has_digits = (GetKeyState(VK_NUMLOCK) & 1) != 0 && !Is_Down(VK_SHIFT);
    if (is_extended || !has_digits) return code;
    for (const auto& [plain, digit] : Keypad) {
        if (plain == code) return digit;
    }
    return code;
}

void Take(const RAWKEYBOARD& event) {
    constexpr USHORT No_Key = 0xFF;  // part of the codes of other keys
    if (event.VKey >= No_Key) return;
    const bool down = (event.Flags & RI_KEY_BREAK) == 0;
    const bool is_extended = (event.Flags & RI_KEY_E0) != 0;
    switch (event.VKey) {
        case VK_SHIFT: {
            const UINT side = MapVirtualKeyW(event.MakeCode, MAPVK_VSC_TO_VK_EX);
            return Note_Pair(VK_SHIFT, VK_LSHIFT, VK_RSHIFT, side == VK_RSHIFT, down);
        }
        case VK_CONTROL:
            return Note_Pair(VK_CONTROL, VK_LCONTROL, VK_RCONTROL, is_extended, down);
        case VK_MENU:
            return Note_Pair(VK_MENU, VK_LMENU, VK_RMENU, is_extended, down);
        default:
            return Note(Keypad_Code(event.VKey, is_extended), down);
    }
}

LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM first, LPARAM second) {
    if (message == WM_INPUT) {
        RAWINPUT input;
        UINT size = sizeof input;
        const UINT taken = GetRawInputData(reinterpret_cast<HRAWINPUT>(second), RID_INPUT, &input,
                                           &size, sizeof input.header);
        if (taken != UINT(-1) && input.header.dwType == RIM_TYPEKEYBOARD) Take(input.data.keyboard);
    }
    return DefWindowProcW(handle, message, first, second);
}

}  // namespace

void windows::Watch_Keys() {
    keys = {};
    WNDCLASSW description{};
    description.lpfnWndProc = Procedure;
    description.hInstance = GetModuleHandleW(nullptr);
    description.lpszClassName = L"SkerrandKeys";
    RegisterClassW(&description);
    const HWND listener = CreateWindowExW(0, description.lpszClassName, L"", 0, 0, 0, 0, 0,
                                          HWND_MESSAGE, nullptr, description.hInstance, nullptr);
    constexpr USHORT Generic_Desktop = 1, Keyboard = 6;
    const RAWINPUTDEVICE keyboard{Generic_Desktop, Keyboard, RIDEV_INPUTSINK, listener};
    RegisterRawInputDevices(&keyboard, 1, sizeof keyboard);
}

std::uint16_t GetAsyncKeyState(int code) {
    if (code < First_Key_Code || code > Last_Key_Code) return 0;
    if (code <= Last_Mouse_Code) return static_cast<std::uint16_t>(::GetAsyncKeyState(code));
    std::uint16_t& key = keys[static_cast<std::size_t>(code)];
    const std::uint16_t state = key;
    key &= Key_Down;
    return state;
}

}  // namespace platform
