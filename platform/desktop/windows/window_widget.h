#pragma once

#include <QAction>
#include <QMenuBar>
#include <QTimer>
#include <QWidget>
#include <string_view>
#include <vector>

#include "platform/common/handlers.h"
#include "platform/common/live.h"
#include "platform/desktop/drawing/canvas.h"

namespace platform::desktop {

using namespace common;

class Window_Widget;

/// A control with what the toolkit has for it. Its address holds for as long as its window exists.
struct Live_Control final : common::Live_Control {
    using common::Live_Control::Live_Control;

    QWidget* widget = nullptr;  ///< null for a menu row and a timer
    QAction* action = nullptr;  ///< of a menu row
    QTimer* timer = nullptr;    ///< of a timer

    Window_Widget& Holder() const;

    void Show_Caption() override;  ///< in a font that lets it fit
    void Show_Text() override;
    void Show_Enabled() override;
    void Show_Checked() override;
    void Show_Transparent() override;
    void Show_Entries() override;
    void Show_Progress() override;
    void Repaint() override;
    void Fit_Timer() override;
    bool Go_To(std::string_view path) override;

    /// Takes over where the folder list has gone.
    void Note_Folder();
};

/// The real window of a table: a menu bar, if the table has menus, and the client area below it.
class Window_Widget final : public QWidget, public Live_Window {
  public:
    explicit Window_Widget(const Window& window);

    void Present() override;
    void Retire() override;
    void Show_Caption() override;
    void Show_Input() override;
    void Show_Drawing() override { canvas->Show_Drawing(); }
    void Repaint() override { repaint(); }
    void Wipe() override { canvas->Wipe(); }
    Window_State State() const override;
    Pixels Frame_Pixels() const override;
    void Show_Minimised() override { showMinimized(); }
    void Place(int x, int y, int cx, int cy, unsigned flags) override;

    QMenuBar* menu_bar = nullptr;
    Canvas* canvas = nullptr;
    std::vector<Live_Control> controls;
    const Live_Control* lost_focus = nullptr;  ///< disabled while it had the focus

  protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Set_Topmost();
    void Move_Outer(QPoint place);
    void Set_Size(QSize inner);
    int Menu_Height() const;
    QMargins Frame_Margins() const;
};

/// Builds the menus, controls and timers of the window's table; calls no handler of the program.
void Build_Controls(Window_Widget& window);

inline Window_Widget* Find_Window(const Window& window) {
    return static_cast<Window_Widget*>(common::Find_Window(window));
}

inline Live_Control* Find_Live(Control_Ref control) {
    return static_cast<Live_Control*>(common::Find_Live(control));
}

}  // namespace platform::desktop
