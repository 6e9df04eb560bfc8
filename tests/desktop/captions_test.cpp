// What a window or a message shows. The measures of the windows' tables were made for one font;
// whatever stands in for it has to fit.

#include <QAbstractButton>
#include <QComboBox>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <gtest/gtest.h>

#include "app/form1.h"
#include "app/form2.h"
#include "app/form5.h"
#include "app/form6.h"
#include "chart/form4.h"
#include "keys/form7.h"
#include "keys/form8.h"
#include "platform/desktop/windows/window_widget.h"
#include "selection/form3.h"
#include "tests/conformance/driver.h"

namespace skerrand {

namespace {

void Expect_Fits(const QWidget& widget, const char* name) {
    const QFontMetrics metrics(widget.font());
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (!label->pixmap().isNull()) return;
        EXPECT_FALSE(label->hasScaledContents()) << name << " shows no picture";
        const int flags = label->wordWrap() ? Qt::TextWordWrap : 0;
        const QRect room(0, 0, label->width(), 1000);
        const QRect needed = metrics.boundingRect(room, flags, label->text());
        EXPECT_LE(needed.width(), label->width()) << name;
        EXPECT_LE(needed.height(), label->height() + 1) << name;
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        EXPECT_LE(metrics.horizontalAdvance(button->text()), widget.width() - 4) << name;
    } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget);
               combo != nullptr && combo->isEditable()) {
        const QLineEdit* line = combo->lineEdit();
        const QFontMetrics condensed(line->font());
        EXPECT_LE(condensed.horizontalAdvance(line->text()), line->width()) << name;
    }
}

TEST(Captions, No_Caption_Is_Cut_In_Its_Box) {
    for (const platform::Window* table :
         {&form1::window, &form2::window, &form3::window, &form4::window, &form5::window,
          &form6::window, &form7::window, &form8::window}) {
        platform::desktop::Window_Widget window(*table);
        window.show();
        for (const auto& control : window.controls)
            if (control.widget != nullptr) Expect_Fits(*control.widget, control.row->name);
        if (window.menu_bar != nullptr) {
            EXPECT_LE(window.menu_bar->sizeHint().width(), window.width()) << table->name;
        }
    }
}

TEST(Captions, A_Path_In_A_Message_Has_One_Kind_Of_Separator) {
    platform::Message_Box("/home/\xE9va\\skerrand.cfg", platform::Icon::Critical, "Title");
    EXPECT_EQ(driver::Take_Messages().back().text, "/home/\xE9va/skerrand.cfg");
}

}  // namespace

}  // namespace skerrand
