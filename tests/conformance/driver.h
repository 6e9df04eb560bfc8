#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "platform/common/handlers.h"
#include "platform/message_box.h"
#include "platform/program.h"
#include "platform/window.h"

/// What the conformance test asks of a back-end from outside: to be its user and its clock. Each
/// back-end has a driver_NAME.cpp with these operations. A test runs many small programs, one after
/// the other, in one process.
namespace driver {

/// Starts a program as `platform::Run` would, from nothing: no window, no message, nothing ended.
/// Windows that an earlier program left are removed without their unload handlers.
void Start(platform::Handler start);

/// Whether the program runs, that is, has not ended as `platform::Run` would see it.
inline bool Running() {
    return !platform::common::Is_Ending();
}

/// Lets the program run for at least that long.
void Advance(int milliseconds);

/// A command of docs/headless.md for simulator and printer, where those are made up; elsewhere
/// nothing happens.
void Set_Surroundings(const std::string& command);

/// The real time, in milliseconds; only differences mean something.
inline long long Clock() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

/// The user's doings. What is disabled takes none of them. They have had their effect, and every
/// handler that they call has returned, when the operation returns.
void Click(platform::Control_Ref control);      ///< also of a menu entry
void Double_Click(platform::Control_Ref list);  ///< on its selected entry
void Pick(platform::Control_Ref list_or_combo, int index);
void Type(platform::Control_Ref combo, const std::string& text);
void Press(const platform::Window& window, platform::Mouse_Button button, int x, int y);
/// In pixels, by the edges of a frame that has edges to drag.
void Resize(const platform::Window& window, int client_width, int client_height);
enum Deed { Minimise, Restore, Close };
void Do(Deed deed, const platform::Window& window);

/// A key goes down or up, whichever program has the focus; of a letter, by its virtual-key code.
void Key(int code, bool down);

/// A message box is answered by itself; where time passes meanwhile, after 300 ms.
struct Message {
    platform::Icon icon;
    std::string title;
    std::string text;
    bool topmost;  ///< where there is a screen; false elsewhere

    friend bool operator==(const Message&, const Message&) = default;
};

/// The messages shown since the start or the last call.
std::vector<Message> Take_Messages();

/// Whether there is a screen, with a focus that keys go to and places of windows by their frame.
/// Without one there is nothing of what stands below, and timers go by no real time.
extern const bool has_screen;

/// Where the outer frame begins, in pixels of the screen, and whether it stays above all others.
using Frame = std::tuple<int, int, bool>;
Frame Frame_Of(const platform::Window& window);

/// Presses a key in the window, as if it were the active one.
enum Stroke { Tab, Enter, Escape, Space, Down };
void Press_Key(const platform::Window& window, Stroke key);

/// Types letters in it, as the next thing after what was done before.
void Type_Keys(const platform::Window& window, const std::string& text);

/// The name of the control that has the window's focus; empty if none has.
std::string Focus(const platform::Window& window);

/// The colour at a pixel of the client area.
platform::Colour Pixel(const platform::Window& window, int x, int y);

/// What a screen reader is told of a control: its name, and whether its role is that of its kind.
/// Nothing where that cannot be asked for.
using Spoken = std::pair<std::string, bool>;
std::optional<Spoken> Spoken_Of(platform::Control_Ref control);

}  // namespace driver
