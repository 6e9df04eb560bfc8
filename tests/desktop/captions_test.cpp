// The measures of the windows' tables were made for one font; whatever stands in for it has to fit.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>
#include <gtest/gtest.h>

#include "app/form1.h"
#include "app/form2.h"
#include "app/form5.h"
#include "app/form6.h"
#include "chart/form4.h"
#include "keys/form7.h"
#include "keys/form8.h"
#include "platform/desktop/windows/window_widget.h"
#include "platform/message_box.h"
#include "selection/form3.h"

namespace skerrand {

namespace {

using platform::desktop::Window_Widget;

void Expect_Fits(const QWidget& widget, const char* name) {
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
    for (const platform::Window* table :
         {&form1::window, &form2::window, &form3::window, &form4::window, &form5::window,
          &form6::window, &form7::window, &form8::window}) {
        Window_Widget window(*table);
        window.show();
        for (const platform::desktop::Live_Control& control : window.controls) {
            if (control.widget != nullptr) Expect_Fits(*control.widget, control.row->name);
        }
        if (window.menu_bar != nullptr) {
            EXPECT_LE(window.menu_bar->sizeHint().width(), window.width()) << table->name;
        }
    }
}

TEST(Messages, A_Path_Is_Shown_With_One_Kind_Of_Separator) {
    QString shown;
    QTimer::singleShot(0, [&shown] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        shown = box->text();
        box->close();
    });
    platform::Message_Box("/home/\xE9va\\skerrand_config.cfg", platform::Icon::Critical, "Title");
    EXPECT_EQ(shown.toStdString(), "/home/\u00e9va/skerrand_config.cfg");
}

}  // namespace

}  // namespace skerrand
