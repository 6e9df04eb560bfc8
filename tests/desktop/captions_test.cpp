// The measures of the windows' tables were made for one font; whatever stands in for it has to fit.

#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/windows/folder_list.h"
#include "platform/desktop/windows/window_widget.h"
#include "platform/message_box.h"
#include "tests/conformance/windows.h"

using namespace skerrand;

using platform::Frame_Style;
using platform::desktop::Window_Widget;

static float pressed_x = 0;

// The caption is a little wider than its button.
constexpr auto Press = [](platform::Mouse_Button, float x, float) { pressed_x = x; };
constexpr platform::Control wide_captions[] = {
    {"", platform::Control_Kind::Button, "", {0, 0, 2025, 300}, "abcdefghijklmnopqrstuvwxyz"}};
constexpr platform::Window plain = {"", "Plain", 2025,    1500,    wide_captions, {},
                                    {}, {},      nullptr, nullptr, nullptr,       Press};

static void Expect_Fits(const QWidget& widget, const char* name) {
    const QFontMetrics metrics(widget.font());
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && !label->pixmap().isNull()) return;
    if (label != nullptr) {
        EXPECT_FALSE(label->hasScaledContents()) << name << " shows no picture";
        const QRect room(0, 0, label->width(), 1000);
        const int flags = label->wordWrap() ? Qt::TextWordWrap : 0;
        const QRect needed = metrics.boundingRect(room, flags, label->text());
        EXPECT_LE(needed.width(), label->width()) << name;
        EXPECT_LE(needed.height(), label->height() + 1) << name;
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        EXPECT_LE(metrics.horizontalAdvance(button->text()), widget.width() - 4) << name;
    } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        const QLineEdit* line = combo->lineEdit();
        if (line == nullptr) return;
        const QFontMetrics condensed(line->font());
        EXPECT_LE(condensed.horizontalAdvance(line->text()), line->width()) << name;
    }
}

TEST(Captions, No_Caption_Is_Cut_In_Its_Box) {
    for (const platform::Window* table : all_windows) {
        Window_Widget window(*table);
        window.Present();
        const QPoint middle = window.screen()->availableGeometry().center();
        const QPoint beside = window.frameGeometry().center() - middle;
        EXPECT_TRUE(table->frame != Frame_Style::Splash || beside.manhattanLength() < 5);
        for (const platform::desktop::Live_Control& control : window.controls) {
            if (control.widget == nullptr) continue;
            Expect_Fits(*control.widget, control.row->name);
            if (control.row->kind == platform::Control_Kind::Label) {
                const QColor colour = control.widget->palette().color(QPalette::WindowText);
                EXPECT_EQ(colour, platform::desktop::To_Qt(control.row->colour));
            }
            if (const auto* line = qobject_cast<QLineEdit*>(control.widget)) {
                EXPECT_EQ(line->alignment().testFlag(Qt::AlignHCenter), control.row->centred);
            }
        }
        if (window.menu_bar != nullptr) {
            EXPECT_LE(window.menu_bar->sizeHint().width(), window.width()) << table->name;
        }
    }
}

TEST(Windows, A_Screen_At_Twice_The_Size_Must_Not_Halve_A_Text_A_Pen_Or_A_Press) {
    Window_Widget window(plain);
    window.Present();
    const platform::Device_Context& device = window.canvas->device;
    EXPECT_EQ(device.font.pixelSize(), 2 * platform::desktop::Default_Font().pixelSize());
    EXPECT_EQ(device.pen_scale, 2);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(20, 60), QPointF(20, 60), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.canvas, &press);
    EXPECT_EQ(pressed_x, 300);
    Expect_Fits(*window.controls[0].widget, "a condensed caption");
}

TEST(Folders, A_First_Look_Begins_On_The_Drive_Of_Wine_Or_In_The_Home_Folder) {
    const QTemporaryDir home;
    const std::string drive = home.path().toStdString() + "/.wine/drive_c";
    qputenv("HOME", home.path().toUtf8());
    qunsetenv("WINEPREFIX");
    EXPECT_EQ(platform::desktop::Folder_List(nullptr).Path(), home.path().toStdString());
    QDir().mkpath(QString::fromStdString(drive));
    EXPECT_EQ(platform::desktop::Folder_List(nullptr).Path(), drive);
    qputenv("WINEPREFIX", "/no such folder");
    const platform::desktop::Folder_List list(nullptr);
    EXPECT_EQ(list.Path(), home.path().toStdString());
    EXPECT_EQ(list.findChild<QLabel*>()->toolTip(), home.path());
}

TEST(Entry_Boxes, The_Wheel_Picks_Or_The_Arrow_Keys_Lead_Back_To_Typed_Text_With_An_Entry_Picked) {
    driver::Start(conformance::Show_Main);
    constexpr auto combo = conformance::Combo1;
    platform::Add_Entries(combo, std::array<std::string, 2>{"Bet (BBBB)", "Beta (AAAA)"});
    auto* box = static_cast<QComboBox*>(platform::desktop::Find_Live(combo)->widget);
    EXPECT_EQ(box->currentText(), "[]");
    driver::Click(combo);
    QWheelEvent turn({}, {}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &turn);
    EXPECT_EQ(platform::Selected_Index(combo), -1);
    driver::Type_Keys(conformance::Main_Window, "bet");
    for (const auto& [key, index] :
         {std::pair(Qt::Key_Down, 0), {Qt::Key_Down, 1}, {Qt::Key_Down, -1}, {Qt::Key_Up, 1}}) {
        QTest::keyClick(QApplication::activePopupWidget(), key);
        EXPECT_EQ(platform::Selected_Index(combo), index);
        EXPECT_EQ(box->currentText().toStdString(), platform::Text_Of(combo));
    }
}

// Over its window, whose picture is whole by then.
TEST(Messages, A_Message_Stands_In_The_Way_Cuts_Its_Title_Or_Mixes_The_Separators) {
    platform::Show(plain);
    platform::LineTo(platform::Window_Device(plain), 9, 9);
    QString shown;
    QTimer::singleShot(0, [&shown] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        shown = box->text();
        EXPECT_NE(box->parentWidget(), nullptr);
        EXPECT_FALSE(platform::Window_Device(plain)->has_changed);
        EXPECT_GT(box->width(), box->fontMetrics().horizontalAdvance(box->windowTitle()) + 100);
        box->close();
    });
    platform::Message_Box("/home/\xE9va\\skerrand_config.cfg", platform::Icon::Critical,
                          "A title that is longer than the text below it");
    EXPECT_EQ(shown.toStdString(), "/home/\u00e9va/skerrand_config.cfg");
    platform::Unload(plain);
}
