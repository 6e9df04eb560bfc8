#include "platform/desktop/program.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QPixmapCache>
#include <QSocketNotifier>
#include <QStyleFactory>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/signalfd.h>
#include <unistd.h>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/keys/keys.h"
#include "platform/desktop/windows/window_widget.h"
#include "platform/program.h"

namespace platform {

namespace desktop {

namespace {

bool leaving = false;

/// The same look everywhere, in the grey that the windows' tables are made for: a theme of the
/// desktop would bring wider controls and, a dark one, light text on them.
void Set_Look() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    // The style's pictures of controls that are gone would fill ten times as much.
    QPixmapCache::setCacheLimit(1024);  // kB
    QPalette palette(QColor(212, 208, 200));
    palette.setColor(QPalette::Highlight, QColor(10, 36, 106));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(palette);
    QApplication::setFont(Default_Font());
    QIcon icon;
    for (const char* file : {":/icon16.png", ":/icon32.png", ":/icon64.png"})
        icon.addFile(QLatin1String(file));
    QApplication::setWindowIcon(icon);
}

/// In place of what the toolkit says and advises when it reaches no display.
void Tell_No_Display(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::fputs("Skerrand reaches no display; please start it where windows can be shown.\n",
               stderr);
    std::_Exit(1);
}

/// The signals that ask a program to end, as something to read. They are held back from here on;
/// one that the program was started to ignore stays ignored.
int Open_Signals() {
    sigset_t watched;
    sigemptyset(&watched);
    for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
        struct sigaction action {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler != SIG_IGN) sigaddset(&watched, signal);
    }
    sigprocmask(SIG_BLOCK, &watched, nullptr);
    return signalfd(-1, &watched, SFD_CLOEXEC);
}

/// Ends the program as the closing of all its windows would, the last one first. A handler that
/// waits for the answer to a message gets it, and runs to its end before.
void Leave() {
    leaving = true;
    if (QWidget* box = QApplication::activeModalWidget()) box->close();
    if (Is_Ending()) return;
    if (Is_Busy()) return QTimer::singleShot(0, Leave);
    const Handler_Scope scope;
    while (!Is_Ending() && !Loaded_Windows().empty())
        Loaded_Windows().back()->Dismiss();
}

}  // namespace

bool Is_Leaving() {
    return leaving;
}

void Set_Up_Application() {
    QApplication::setApplicationName(QStringLiteral("skerrand"));
    QGuiApplication::setDesktopFileName(QStringLiteral("skerrand"));
    // A window may close before the next one shows; the end is decided after each handler.
    QApplication::setQuitOnLastWindowClosed(false);
    Set_Look();
}

void Begin(Handler start) {
    Watch_Keys();
    common::Begin(start);
}

}  // namespace desktop

// Not quit(): that would close the windows one by one, as the user would.
void common::Leave_Loop() {
    QCoreApplication::exit(0);
}

int Run(int argc, char** argv, Handler start) {
    // Staying on top, places on the screen and global keys are an X server's, which most Wayland
    // desktops have beside themselves.
    const bool has_x = !qEnvironmentVariableIsEmpty("DISPLAY");
    if (has_x && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    }
    const int ends = desktop::Open_Signals();
    // Neither the program nor the toolkit reads options from the command line.
    int arguments = argc > 0 ? 1 : 0;
    qInstallMessageHandler(desktop::Tell_No_Display);
    QApplication application(arguments, argv);
    qInstallMessageHandler(nullptr);
    QSocketNotifier notifier(ends, QSocketNotifier::Read);
    QObject::connect(&notifier, &QSocketNotifier::activated, [&notifier] {
        notifier.setEnabled(false);
        desktop::Leave();
    });
    desktop::Set_Up_Application();
    desktop::Begin(start);
    const int status = desktop::Is_Ending() ? 0 : QApplication::exec();
    desktop::Destroy_Windows();
    close(ends);
    return status;
}

}  // namespace platform
