#include <QApplication>
#include <gtest/gtest.h>

#include "platform/desktop/program.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    // Tests are listed while building, where the toolkit may lack what it needs.
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    // No test here looks at a real screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");  // where a forgotten ratio of the pixels shows
    const QApplication application(argc, argv);
    platform::desktop::Set_Up_Application();
    return RUN_ALL_TESTS();
}
