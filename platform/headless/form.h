#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/common/handlers.h"
#include "platform/common/live.h"
#include "platform/headless/device.h"

/// The loaded windows of this back-end. A form exists from just before its load handler runs until
/// just after its unload handler has; any handler may end it, so no pointer to one is kept across
/// the call of a handler.
namespace platform::headless {

using namespace common;

/// The screen has 96 dots to the inch.
inline constexpr int Twips_Per_Pixel = 15;

inline constexpr std::size_t No_Container = static_cast<std::size_t>(-1);

struct Control_State final : Live_Control {
    using Live_Control::Live_Control;

    std::size_t container = No_Container;  ///< frame or menu that holds it, by its row

    void Fit_Timer() override;
    bool Go_To(std::string_view path) override;
};

struct Form final : Live_Window {
    explicit Form(const Window& window);

    bool visible = false;
    bool minimised = false;
    int left = 64;  ///< pixels of the screen, as are all measures here
    int top = 64;
    int client_width = 0;
    int client_height = 0;
    std::vector<Control_State> controls;  ///< in the order of the window's table
    Device_Context device;

    void Present() override { visible = true; }
    void Retire() override { delete this; }
    void Wipe() override { headless::Wipe(device); }
    Window_State State() const override;
    Pixels Frame_Pixels() const override;
    void Show_Minimised() override { minimised = true; }
    void Place(int x, int y, int cx, int cy, unsigned flags) override;
};

/// Null if the window is not loaded.
inline Form* Find_Form(const Window& window) {
    return static_cast<Form*>(Find_Window(window));
}

/// Pixels that the frame and the menu bar add to the client area.
int Frame_Width(const Window& window);
int Frame_Height(const Window& window);

/// Gives the outer frame a size, at least that of an empty client area; calls the resize handler if
/// that changed anything.
void Resize_Form(Form& form, int outer_width, int outer_height);

/// Minimises or restores; calls the resize handler if that changed anything.
void Set_Minimised(Form& form, bool minimised);

/// Whether a control without a frame covers that pixel of the client area.
bool Is_Covered(const Form& form, int x, int y);

/// The folder by its whole path, whether it exists or not: from the working folder if the path
/// starts neither at a root nor with a drive; "." and ".." resolved; no separator at its end but a
/// root's. Empty if the working folder's own name cannot be told. Windows-1252.
std::string Whole_Path(std::string_view path);

/// Points the list at a folder, whether it exists or not.
void Move_Folder_List(Control_State& list, const std::string& whole_path);

/// Names of its folders, with "?" for what Windows-1252 does not have.
std::vector<std::string> Subfolders(std::string_view path);

}  // namespace platform::headless
