#include "platform/desktop/program.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QSocketNotifier>
#include <QStyleFactory>
#include <QTimer>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/signalfd.h>
#include <unistd.h>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/keys/keys.h"
#include "platform/desktop/windows/window_widget.h"
#include "platform/desktop/windows/windows.h"
#include "platform/program.h"

namespace platform {

namespace desktop {

namespace {

int handlers_running = 0;
bool begun = false;
bool ending = false;
bool leaving = false;

/// The same look everywhere, in the grey that the windows' tables are made for: a theme of the
/// desktop would bring wider controls and, a dark one, light text on them.
void Set_Look() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
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
    if (ending) return;
    if (Is_Busy()) return QTimer::singleShot(0, Leave);
    const Handler_Scope scope;
    while (!ending && !Loaded_Windows().empty())
        Loaded_Windows().back()->Dismiss();
}

}  // namespace

Handler_Scope::Handler_Scope() {
    ++handlers_running;
}

Handler_Scope::~Handler_Scope() {
    --handlers_running;
    if (handlers_running > 0) return;
    if (begun && Has_Ended()) ending = true;
    // Not quit(): that would close the windows one by one, as the user would.
    if (ending) {
        QCoreApplication::exit(0);
    } else {
        Settle_Windows();
    }
}

bool Is_Busy() {
    return handlers_running > 0 || ending;
}

bool Is_Ending() {
    return ending;
}

bool Is_Leaving() {
    return leaving;
}

void Call(Handler handler) {
    if (handler == nullptr || ending) return;
    const Handler_Scope scope;
    handler();
}

void Set_Up_Application() {
    // The toolkit takes the user's locale, in which a number may have a decimal comma.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("skerrand"));
    QGuiApplication::setDesktopFileName(QStringLiteral("skerrand"));
    // A window may close before the next one shows; the end is decided after each handler.
    QApplication::setQuitOnLastWindowClosed(false);
    Set_Look();
}

void Begin(Handler start) {
    Destroy_Windows();
    begun = true;
    ending = false;
    Watch_Keys();
    const Handler_Scope scope;
    start();
}

}  // namespace desktop

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

void End_Program() {
    desktop::ending = true;
    // Called from outside any handler it takes effect at once.
    const desktop::Handler_Scope scope;
}

bool Has_Ended() {
    return desktop::ending || desktop::Loaded_Windows().empty();
}

}  // namespace platform
