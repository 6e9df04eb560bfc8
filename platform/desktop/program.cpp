#include "platform/program.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <clocale>

#include "platform/desktop/application.h"
#include "platform/desktop/drawing/text.h"
#include "platform/desktop/handlers.h"
#include "platform/desktop/keys.h"
#include "platform/desktop/program_icon.h"
#include "platform/desktop/windows.h"

namespace platform {

namespace {

/// The same look everywhere, in the grey that the windows' tables are made for: a theme of the
/// desktop would bring wider controls and, a dark one, light text on them.
void Set_Look() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palette(QColor(212, 208, 200));
    palette.setColor(QPalette::Highlight, QColor(10, 36, 106));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(palette);
    QApplication::setFont(desktop::Default_Font());
    QApplication::setWindowIcon(desktop::Program_Icon());
}

}  // namespace

void desktop::Set_Up_Application() {
    // The toolkit takes the user's locale, in which a number may have a decimal comma.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("skerrand"));
    QGuiApplication::setDesktopFileName(QStringLiteral("skerrand"));
    // A window may close before the next one shows; the end is decided after each handler.
    QApplication::setQuitOnLastWindowClosed(false);
    Set_Look();
}

void desktop::Begin(Handler start) {
    Destroy_Windows();
    Reset_Life();
    Watch_Keys();
    const Handler_Scope scope;
    start();
}

int Run(int argc, char** argv, Handler start) {
    // Neither the program nor the toolkit reads options from the command line.
    int arguments = argc > 0 ? 1 : 0;
    QApplication application(arguments, argv);
    desktop::Set_Up_Application();
    desktop::Begin(start);
    const int status = desktop::Is_Ending() ? 0 : QApplication::exec();
    desktop::Destroy_Windows();
    return status;
}

}  // namespace platform
