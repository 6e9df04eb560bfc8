#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls.h"
#include "platform/window.h"

/// The loaded windows: what the program and the user have made of their tables. A back-end derives
/// its own from them, which show on the screen what stands here; what it has no picture of it
/// leaves out. Any handler may unload a window, so no pointer to one is kept across its call.
namespace platform::common {

struct Live_Window;

/// A control as it stands. What its kind does not have stays as it is here.
struct Live_Control {
    Live_Control(Live_Window& holder, const Control& table_row);
    virtual ~Live_Control() = default;

    Live_Window* window;
    const Control* row;
    std::string caption;
    std::string text;  ///< of a text or combo box
    bool enabled;
    bool checked = false;
    bool transparent;
    std::vector<std::string> entries;  ///< of a combo, list, drive or folder list
    int selected = -1;                 ///< the picked entry
    std::vector<std::size_t> matches;  ///< of a combo box: the entries that typing has found
    std::string folder;                ///< of a folder list
    Progress progress;
    bool running;          ///< of a timer, also with an interval of 0
    int interval;          ///< milliseconds
    std::int64_t due = 0;  ///< of the next tick, where the back-end counts time itself

    virtual void Show_Caption() {}
    virtual void Show_Text() {}
    virtual void Show_Enabled() {}
    virtual void Show_Checked() {}
    virtual void Show_Transparent() {}
    virtual void Show_Entries() {}
    virtual void Show_Progress() {}
    virtual void Repaint() {}
    /// Milliseconds between ticks where time is real. An interval of fewer than 5 is that of a
    /// timer that asks again and again; it is stretched to 20, so that it leaves the processor to
    /// others: a key press lasts 50 ms and more.
    int Real_Interval() const { return interval < 5 ? 20 : interval; }
    /// A timer was started or stopped, or has a new interval, which begins now.
    virtual void Fit_Timer() = 0;
    /// Goes to a folder by a path of the program; false, changing nothing, if there is none or if
    /// it is the same.
    virtual bool Go_To(std::string_view) = 0;
};

struct Pixels {
    int width = 0;
    int height = 0;

    friend bool operator==(const Pixels&, const Pixels&) = default;
};

struct Live_Window {
    explicit Live_Window(const Window& window);
    virtual ~Live_Window() = default;

    const Window& table;
    std::vector<Live_Control*> rows;  ///< the controls in the order of the table
    std::string caption;
    std::array<double, 4> user_bounds;  ///< left, top, right, bottom
    bool is_topmost = false;
    bool is_unloading = false;
    bool takes_input = true;
    bool was_shown = false;
    Window_State reported_state = Window_State::Normal;
    Pixels reported_size;  ///< of the frame; outlasts a minimised state
    int wheel = 0;         ///< what the wheel has turned since the last whole notch

    /// Shows the window; the first time with a wiped client area.
    virtual void Present() = 0;
    /// Takes it from the screen and deletes it as soon as nobody is at work in it.
    virtual void Retire() = 0;
    virtual void Show_Caption() {}
    virtual void Show_Input() {}
    /// Shows what has been drawn since the last time. Called when a handler has ended, so that the
    /// screen never shows half a picture.
    virtual void Show_Drawing() {}
    virtual void Repaint() {}
    virtual void Wipe() = 0;
    virtual Window_State State() const = 0;
    /// Of the frame as it is on the screen.
    virtual Pixels Frame_Pixels() const = 0;
    virtual void Show_Minimised() = 0;
    /// As `SetWindowPos` tells it, with `is_topmost` for the place among the windows.
    virtual void Place(int x, int y, int cx, int cy, unsigned flags) = 0;

    /// Calls the unload handler, takes the window out of the loaded ones and retires it.
    void Dismiss();

    /// Of the frame; of a minimised window that of its normal state.
    Pixels Outer_Pixels() const;

    /// Minimises, and calls the resize handler before it returns.
    void Minimise_Now();

    /// Calls the resize handler if size or state are not what was reported last. While a handler
    /// runs nothing happens: the end of the handler asks again.
    void Report_Size();

    /// A press on that pixel of a client area of that size.
    void Take_Press(Mouse_Button button, double x, double y, Pixels client) const;

    /// A turn of the wheel away from the user, 120 to a notch; towards them below 0.
    void Take_Wheel(int turn);
};

/// The back-end's own: a window with its controls, not yet shown.
Live_Window* Make_Window(const Window& table);

/// In the order of loading.
const std::vector<Live_Window*>& Loaded_Windows();

/// Null if the window is not loaded, or the control not of that kind.
Live_Window* Find_Window(const Window& window);
Live_Control* Find_Live(Control_Ref control);
Live_Control* Find_Live(Control_Ref control, Control_Kind kind);

/// After a handler: shows what it has drawn and reports sizes that have changed meanwhile.
void Settle_Windows();

/// Destroys all windows without calling their handlers.
void Destroy_Windows();

/// The user has done to the control what its handler is for.
void Fire(const Live_Control& control);

/// The places of the entries that hold a text in any case, those first that a user who types it is
/// likely to mean: whose code, in brackets at their end, is the text, then those that begin with
/// it, then the rest, each in their own order. None for an empty text.
std::vector<std::size_t> Matches(const std::vector<std::string>& entries, std::string_view typed);

/// Whether a combo box shows the text that it started with. It is marked whole then wherever the
/// user puts the cursor, so that typing replaces it.
bool Shows_Hint(const Live_Control& combo);

/// The user has changed the text of a combo box: nothing is picked then, and the text looks for its
/// matches.
void Take_Typed(Live_Control& combo, std::string text);

/// The user has clicked a button, check box, option button or menu entry.
void Take_Click(Live_Control& control);

/// The user has pressed the Escape key in the window.
void Take_Escape(const Live_Window& window);

/// The user has picked an entry of a combo box or list; -1 for none.
void Take_Pick(Live_Control& list, int index);

/// The user has pressed Return in a combo box: takes the only match where none has been picked.
void Take_Return(Live_Control& combo);

/// Tells the user that a folder, named here with "?" for such characters, cannot be used.
void Refuse_Folder(const std::string& name);

/// The number of each row in the order of the Tab key: the numbered ones go first, then the others
/// by the table.
std::vector<std::size_t> Tab_Order(const Window& table);

}  // namespace platform::common
