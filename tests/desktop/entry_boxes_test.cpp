#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include "platform/controls.h"
#include "platform/desktop/windows/window_widget.h"
#include "selection/form3.h"
#include "tests/conformance/driver.h"

using namespace platform;

static Window table = skerrand::form3::window;

TEST(EntryBoxes, The_Arrow_Keys_Lead_Back_To_The_Typed_Text_With_An_Entry_Picked) {
    table.load = table.unload = nullptr;
    driver::Start([] { Show(table); });
    const auto at = std::ranges::find(table.controls, std::string("Combo1"), &Control::name);
    const Control_Ref combo{&table, static_cast<std::size_t>(at - table.controls.begin())};
    Add_Entries(combo, std::array<std::string, 2>{"Beta (AAAA)", "Bet (BBBB)"});
    Set_Enabled(combo, true);
    auto* box = static_cast<QComboBox*>(desktop::Find_Live(combo)->widget);
    box->setFocus();
    QWheelEvent turn({}, {}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &turn);
    EXPECT_EQ(Selected_Index(combo), -1) << "by the wheel";
    QTest::keyClicks(box->lineEdit(), "bet");
    const std::pair<Qt::Key, int> steps[] = {{Qt::Key_Down, 0},  {Qt::Key_Down, 1},
                                             {Qt::Key_Down, -1}, {Qt::Key_Up, 1},
                                             {Qt::Key_Up, 0},    {Qt::Key_Up, -1}};
    for (const auto& [key, index] : steps) {
        QTest::keyClick(box->completer()->popup(), key);
        EXPECT_EQ(Selected_Index(combo), index);
        EXPECT_EQ(Text_Of(combo), index < 0 ? "bet" : Entry_Text(combo, index));
        EXPECT_EQ(box->currentText().toStdString(), Text_Of(combo));
    }
}
