#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls.h"
#include "platform/headless/device.h"
#include "platform/window.h"

/// The loaded windows of this back-end. A form exists from just before its load handler runs until
/// just after its unload handler has; any handler may end it, so no pointer to one is kept across
/// the call of a handler.
namespace platform::headless {

/// The screen has 96 dots to the inch.
inline constexpr int Twips_Per_Pixel = 15;

inline constexpr std::size_t No_Container = static_cast<std::size_t>(-1);

/// What can change in a control; what its kind does not have stays as it is here.
struct Control_State {
    std::size_t container = No_Container;  ///< frame or menu that holds it, by its row
    std::string caption;
    std::string text;  ///< of a text or combo box
    bool enabled = true;
    bool checked = false;
    bool transparent = false;
    std::vector<std::string> entries;
    int index = -1;    ///< the selected entry
    std::string path;  ///< of a folder list
    Progress progress;
    bool running = false;  ///< of a timer
    int interval = 0;      ///< milliseconds
    std::int64_t due = 0;  ///< clock time of the next tick
};

struct Form {
    const Window* window = nullptr;
    std::string caption;
    bool visible = false;
    bool enabled = true;
    bool topmost = false;
    bool minimised = false;
    bool unloading = false;
    int left = 64;  ///< pixels of the screen, as are all measures here
    int top = 64;
    int client_width = 0;
    int client_height = 0;
    std::array<double, 4> user_bounds{};  ///< left, top, right, bottom
    std::vector<Control_State> controls;  ///< in the order of the window's table
    Device_Context device;
};

/// In the order of loading.
extern std::vector<std::unique_ptr<Form>> forms;

/// Null if the window is not loaded.
Form* Find_Form(const Window& window);

/// Null if the window is not loaded or the control is not of that kind.
Control_State* Find_State(Control_Ref control);
Control_State* Find_State(Control_Ref control, Control_Kind kind);

/// Pixels that the frame and the menu bar add to the client area.
int Frame_Width(const Window& window);
int Frame_Height(const Window& window);

/// Gives the outer frame a size, at least that of an empty client area; calls the resize handler if
/// that changed anything.
void Resize_Form(Form& form, int outer_width, int outer_height);

/// Minimises or restores; calls the resize handler if that changed anything.
void Set_Minimised(Form& form, bool minimised);

/// Selects an option button and clears its neighbours in the same frame, or clears it; calls no
/// handler.
void Set_Option(Control_Ref control, bool selected);

/// Selects an entry of a combo, list or drive list, -1 for none; calls no handler.
void Select_Entry(Control_Ref control, int index);

/// All entries of a combo, list, drive or folder list, whose entries are its subfolders.
std::vector<std::string> Entries_Of(Control_Ref control);

/// Whether a control without a frame covers that pixel of the client area.
bool Is_Covered(const Form& form, int x, int y);

/// The folder by its whole path, whether it exists or not: from the working folder if the path
/// starts neither at a root nor with a drive; "." and ".." resolved; no separator at its end but a
/// root's. Empty if the working folder's own name cannot be told. Windows-1252.
std::string Whole_Path(std::string_view path);

/// Points the list at a folder and calls its handler.
void Move_Folder_List(Control_Ref control, const std::string& whole_path);

std::vector<std::string> Subfolders(std::string_view path);

}  // namespace platform::headless
