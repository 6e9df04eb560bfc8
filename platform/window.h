#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "platform/colour.h"

/// Windows as constant tables, and what the program asks of a window.
///
/// A window is described by a `Window` with static storage: its measures, its controls in the order
/// of its layout, and the free functions that its events call. A back-end builds the real window
/// from that description; at most one exists of each description at a time.
///
/// Lengths are twips, 1440 to the inch. Every text is single-byte Windows-1252. An operation on a
/// window that is not loaded does nothing, and a question about one answers empty, zero or false.
namespace platform {

enum class Control_Kind : std::uint8_t {
    Frame,
    Label,
    Button,
    Text,  ///< a box with a text only to be read
    Combo,
    List,
    Check,
    Option,
    Progress,
    Drive,
    Folder,
    Menu,
    Timer,
    Picture,
};

/// What an event calls. It runs to its end before another event starts.
using Handler = void (*)();

/// A rectangle in twips, relative to the frame or window that holds it.
struct Box {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// A font by name and size in points; an empty name is the platform's default font and size.
struct Font {
    const char* name = "";
    double size = 0;
    bool bold = false;
};

/// One row of a window's table.
struct Control {
    const char* name;
    Control_Kind kind;
    /// Name of the frame that holds the control, which stands ahead of it in the table, or of the
    /// menu that an entry stands in; empty for the window itself (and for the titles of the menu
    /// bar).
    const char* in = "";
    Box at = {};
    /// Caption, or the first text of a text or combo box.
    const char* caption = "";
    /// Called by the one event that matters for the kind: the click of a button, check box, option
    /// button or menu entry; the change of a text box, drive list or folder list; the double click
    /// of a list, or Return or the space bar let go in it; the tick of a timer.
    Handler handler = nullptr;
    /// Timer only: milliseconds between ticks; 0 never ticks.
    int interval = 0;
    /// Whether the control takes input; for a timer, whether it runs from the load on.
    bool enabled = true;
    /// What a screen reader calls the control where neither its own caption nor the one ahead of it
    /// tells that (see `Spoken_Name`).
    const char* spoken = "";
    bool multi_line = false;   ///< text box: several lines, with a scroll bar
    bool centred = false;      ///< text box: the text is centred
    bool sorted = false;       ///< combo, list: entries are kept in the order of their bytes
    bool transparent = false;  ///< label: the background shows through
    bool cancels = false;      ///< button: the Escape key presses it
    Font font = {};
    Colour colour = Colour_Black;  ///< of the text
    /// Place in the order of the Tab key, from 0; -1 comes behind all numbers, by the table. Of the
    /// option buttons in one frame the key reaches the selected one alone. A window first shows
    /// with the focus on the first control that takes it.
    int tab_index = -1;
};

enum class Frame_Style : std::uint8_t {
    Fixed,    ///< caption, close button and minimise button
    Sizable,  ///< as Fixed, and the user may resize it; there is no maximise button
    Dialog,   ///< caption and close button alone
    Splash,   ///< no caption bar where the platform can leave it out
};

enum class Mouse_Button : std::uint8_t { Left, Right, Middle };

/// A press at a point in the window's user coordinates (see `Set_User_Coordinates`).
using Mouse_Handler = void (*)(Mouse_Button button, float x, float y);

struct Window {
    const char* name;
    const char* caption;
    int client_width;   ///< twips, at creation
    int client_height;  ///< twips, at creation, without caption and menu bar
    std::span<const Control> controls;
    Frame_Style frame = Frame_Style::Fixed;
    Colour back_colour = {212, 208, 200};  ///< of the client area; the platform's dialog grey
    Colour fore_colour = Colour_Black;     ///< the pen colour that drawing starts with
    Handler load = nullptr;                ///< after the controls exist, before the window shows
    Handler unload = nullptr;              ///< before the controls go, however it is closed
    Handler resize = nullptr;              ///< after its size or its minimised state has changed
    Mouse_Handler mouse_down = nullptr;    ///< a press on the client area beside the controls
    /// The keys pressed in it are the program's to ask for (`GetAsyncKeyState`): none of its
    /// controls takes the focus, so that a key moves nothing and presses no button.
    bool takes_keys = false;
    /// Each notch of the mouse's wheel, turned away from the user or towards them.
    Handler wheel_away = nullptr;
    Handler wheel_towards = nullptr;
};

/// Names one control of one window.
struct Control_Ref {
    const Window* window;
    std::size_t index;  ///< into `window->controls`

    friend constexpr bool operator==(const Control_Ref&, const Control_Ref&) = default;
};

/// Looks a control up by its name while compiling; an unknown name does not compile.
consteval Control_Ref Find_Control(const Window& window, std::string_view name) {
    for (std::size_t i = 0; i < window.controls.size(); ++i) {
        if (window.controls[i].name == name) return {&window, i};
    }
    throw "no control of that name in the window's table";
}

/// The name that a screen reader is told of a control beside its caption: the one in its table, or
/// for a kind that has no caption the one of the label or frame right ahead of it, without a colon
/// at its end. Empty where the caption serves.
constexpr std::string_view Spoken_Name(const Window& window, std::size_t index) {
    const Control& row = window.controls[index];
    const bool has_caption = row.kind <= Control_Kind::Button || row.kind == Control_Kind::Check ||
                             row.kind == Control_Kind::Option || row.kind == Control_Kind::Menu;
    if (*row.spoken != '\0' || has_caption || index == 0) return row.spoken;
    const std::string_view ahead = window.controls[index - 1].caption;
    return ahead.substr(0, ahead.size() - (ahead.ends_with(':') ? 1 : 0));
}

enum class Window_State : std::uint8_t { Normal, Minimised };

struct Size {
    double width = 0;
    double height = 0;
};

/// Builds the window and calls its load handler if it is not loaded; then shows it, not modally.
/// The program ends by itself when a handler has returned and no window is loaded any more.
void Show(const Window& window);

/// Calls the unload handler and removes the window with its timers. Safe in the window's own
/// handlers: what follows in them still runs.
void Unload(const Window& window);

bool Is_Loaded(const Window& window);

void Set_Caption(const Window& window, std::string_view caption);

/// A disabled window takes no input from the user; its timers go on.
void Set_Enabled(const Window& window, bool enabled);

/// Brings the screen up to date at once, since a long handler gives the platform no time for it.
void Repaint(const Window& window);

Window_State State_Of(const Window& window);

void Minimise(const Window& window);

/// Outer size in twips, frame and menu bar included; of a minimised window the size that it has
/// when normal.
Size Outer_Size(const Window& window);

/// Twips to pixels of the screen, not rounded.
double Twips_To_Pixels_X(double twips);
double Twips_To_Pixels_Y(double twips);

/// Wipes all drawing from the client area, leaving the background colour. Controls are untouched.
void Erase(const Window& window);

/// Maps the client area onto these bounds, so that a mouse press arrives as
/// left + x * (right - left) / width of the client area, and likewise downwards, each cut to a
/// 32-bit float. Bounds may fall from left to right or from top to bottom.
void Set_User_Coordinates(const Window& window, double left, double top, double right,
                          double bottom);

enum class Insert_After : std::uint8_t { HWND_TOPMOST, HWND_NOTOPMOST };

inline constexpr unsigned SWP_NOSIZE = 1;  ///< keep the size, ignore cx and cy
inline constexpr unsigned SWP_NOMOVE = 2;  ///< keep the place, ignore x and y

/// Puts the window above all others that are not topmost, or back among them; x, y, cx and cy are
/// pixels of the outer frame.
void SetWindowPos(const Window& window, Insert_After after, int x, int y, int cx, int cy,
                  unsigned flags);

}  // namespace platform
