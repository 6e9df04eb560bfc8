#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/window.h"
#include "platform/windows/device.h"
#include "platform/windows/native.h"

/// The loaded windows of this back-end, with their native ones. Any handler may unload a window, so
/// no pointer to one is kept across the call of a handler; the record itself lives on until no
/// handler runs any more.
namespace platform::windows {

struct Live_Window;

/// A control as it stands. What its kind does not have stays as it is here.
struct Live_Control {
    Live_Window* window = nullptr;
    const Control* row = nullptr;
    RECT place = {};          ///< pixels of the client area
    HWND handle = nullptr;    ///< null for a menu entry, a timer and a picture
    HFONT font = nullptr;     ///< of its own, if it has one
    std::string text;         ///< of a text box, as the program knows it
    bool is_setting = false;  ///< the program is at work on it: what it tells is no news
    bool checked = false;
    bool transparent = false;

    std::vector<std::string> entries;      ///< of a combo box or list, as the program sees them
    int selected = -1;                     ///< of a combo box
    HWND list = nullptr;                   ///< the one that a combo box drops
    std::vector<std::size_t> matches;      ///< entries that stand in it, narrowed by typing
    std::string folder;                    ///< of a folder list
    std::vector<std::wstring> subfolders;  ///< native names
    HWND caption = nullptr;                ///< above a folder list: where it is

    Progress progress;
    bool running = false;  ///< of a timer
    int interval = 0;      ///< milliseconds
    std::int64_t due = 0;  ///< of the next tick, by `Clock`
};

struct Live_Window {
    const Window* table = nullptr;
    HWND handle = nullptr;
    HBRUSH back_brush = nullptr;
    std::vector<Live_Control> controls;  ///< in the order of the table
    Device_Context device;
    HBITMAP bitmap = nullptr;  ///< the picture of the client area
    SIZE bitmap_size = {};
    std::array<double, 4> user_bounds{};  ///< left, top, right, bottom
    HWND focus = nullptr;                 ///< the control to get it back
    HWND lost_focus = nullptr;            ///< disabled while it had the focus
    bool is_topmost = false;
    bool is_unloading = false;
    bool takes_input = true;
    bool was_shown = false;
    Window_State reported_state = Window_State::Normal;
    SIZE reported_size = {};  ///< of the frame; outlasts a minimised state
};

/// In the order of loading.
const std::vector<std::unique_ptr<Live_Window>>& Loaded_Windows();

/// Null if the window is not loaded, or the control not of that kind.
Live_Window* Find_Window(const Window& window);
Live_Control* Find_Live(Control_Ref control);
Live_Control* Find_Live(Control_Ref control, Control_Kind kind);

/// A control's native window, and a menu entry, has the number of its row from here on.
inline constexpr int First_Id = 100;
/// Null for any other number.
Live_Control* Control_Of_Id(Live_Window& window, int id);

void Add_Window(std::unique_ptr<Live_Window> window);

/// Takes the window out of the loaded ones. It stays on the screen until the running handler has
/// ended, so that the next window comes before this one goes and keeps the focus in the program.
void Retire_Window(Live_Window& window);

/// Shows what has been drawn on all windows and hides what is retired, so that the screen is not
/// behind while a message box stands.
void Show_Drawings();

/// Called when a handler has ended: does that, and tells of new sizes.
void Settle_Windows();

/// Destroys the retired windows; not while a handler runs.
void Destroy_Retired();

/// Destroys all windows without calling their handlers.
void Destroy_Windows();

/// Fires the control's handler as an event.
void Fire(const Live_Control& control);

}  // namespace platform::windows
