#include <QApplication>
#include <gtest/gtest.h>

#include "platform/desktop/application.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // No test here looks at a real screen, and there may be none where the tests are listed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    platform::desktop::Set_Up_Application();
    return RUN_ALL_TESTS();
}
