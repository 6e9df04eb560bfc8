#pragma once

#include <string>
#include <vector>

#include "platform/message_box.h"
#include "platform/program.h"
#include "platform/window.h"

/// What the conformance test asks of a back-end from outside: to be its user and its clock. Each
/// back-end has a driver_NAME.cpp with these operations. A test runs many small programs, one after
/// the other, in one process.
namespace driver {

/// Called once, before the first program.
void Prepare(int& argc, char** argv);

/// Starts a program as `platform::Run` would, from nothing: no window, no message, nothing ended.
/// Windows that an earlier program left are removed without their unload handlers.
void Start(platform::Handler start);

/// Whether the program runs, that is, has not ended as `platform::Run` would see it.
bool Running();

/// Lets the program run for at least that long.
void Advance(int milliseconds);

/// The time that timers go by, in milliseconds; only differences mean something.
long long Clock();

/// The user's doings. What is disabled takes none of them. They have had their effect, and every
/// handler that they call has returned, when the operation returns.
void Click(platform::Control_Ref control);
void Double_Click(platform::Control_Ref list);  ///< on the entry that is selected
void Pick(platform::Control_Ref list_or_combo, int index);
void Type(platform::Control_Ref combo, const std::string& text);
void Press(const platform::Window& window, platform::Mouse_Button button, int x, int y);
void Resize(const platform::Window& window, int client_width, int client_height);  ///< pixels
enum Deed { Minimise, Restore, Close };
void Do(Deed deed, const platform::Window& window);

/// A key goes down or up while the window has the focus; of a letter, by its virtual-key code.
void Key(const platform::Window& window, int code, bool down);

/// A message box is answered by itself; where time passes meanwhile, after 300 ms.
struct Message {
    platform::Icon icon;
    std::string title;
    std::string text;

    friend bool operator==(const Message&, const Message&) = default;
};

/// The messages shown since the start or the last call.
std::vector<Message> Take_Messages();

/// The colour at a pixel of the client area where no control stands, and no shape but a line.
platform::Colour Pixel(const platform::Window& window, int x, int y);

}  // namespace driver
