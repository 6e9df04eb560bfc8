#pragma once

#include <QAction>
#include <QMenuBar>
#include <QTimer>
#include <QWidget>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/desktop/drawing/canvas.h"

namespace platform::desktop {

class Window_Widget;

/// One row of a loaded window's table: what the toolkit has for it and what the program has set.
/// Its address holds for as long as the window's widget exists.
struct Live_Control {
    Window_Widget* window = nullptr;
    const Control* row = nullptr;

    QWidget* widget = nullptr;  ///< null for a menu row and a timer
    QAction* action = nullptr;  ///< of a menu row
    QTimer* timer = nullptr;    ///< of a timer

    std::string text;                  ///< text box: as last set or typed
    std::vector<std::string> entries;  ///< combo and list: as shown
    Progress progress;
    int interval = 0;      ///< timer, in milliseconds
    bool running = false;  ///< timer: enabled, also with an interval of 0
};

/// The user has done to the control what its handler is for.
void Fire(Live_Control& control);

/// The real window of a table: a menu bar, if the table has menus, and the client area below it.
class Window_Widget final : public QWidget {
  public:
    explicit Window_Widget(const Window& window);

    /// Shows the window; the first time with a wiped client area.
    void Present();

    /// Calls the unload handler, takes the window from the screen and leaves its deletion to the
    /// event loop, so that the window's own handlers may ask for it.
    void Dismiss();

    void Set_Topmost(bool topmost);
    bool Is_Topmost() const { return is_topmost; }

    /// A disabled window refuses input and its close button.
    void Set_Input(bool enabled);

    /// Place and size of the outer frame in device pixels.
    void Move_Outer(QPoint place);
    void Resize_Outer(QSize size);

    /// Outer size in device pixels; of a minimised window that of its normal state.
    QSize Outer_Pixels() const;

    Window_State State() const;

    /// Minimises, and calls the resize handler before it returns.
    void Minimise_Now();

    /// Calls the resize handler if the outer size or the minimised state is not what was reported
    /// last. While a handler runs nothing happens: the end of the handler asks again.
    void Report_Size();

    const Window& table;
    QMenuBar* menu_bar = nullptr;
    Canvas* canvas = nullptr;
    std::vector<Live_Control> controls;
    const Live_Control* lost_focus = nullptr;  ///< disabled while it had the focus

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Set_Size(QSize inner);
    int Menu_Height() const;
    QMargins Frame_Margins() const;

    bool is_topmost = false;
    bool is_unloading = false;
    bool takes_input = true;
    bool was_shown = false;
    Window_State reported_state = Window_State::Normal;
    QSize reported_size;  ///< in device pixels; outlasts a minimised state
};

}  // namespace platform::desktop
