#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/keys/keys.h"
#include "platform/desktop/program.h"
#include "platform/desktop/scale.h"
#include "platform/desktop/windows/window_widget.h"
#include "tests/conformance/driver.h"

namespace driver {

const bool has_screen = true;

namespace {

using namespace platform;
using desktop::Window_Widget;

std::vector<Message> messages;

QPoint Place_Of_Entry(const QListView& view, int index) {
    return view.visualRect(view.model()->index(index, 0)).center();
}

/// Answers a message box that has stood for long enough, as a user who reads it would.
void Answer() {
    static QElapsedTimer standing;
    static const QMessageBox* known = nullptr;
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != known) standing.start();
    known = box;
    if (box == nullptr || standing.elapsed() < 300) return;
    static_assert(QMessageBox::Information == 1 && QMessageBox::Critical == 3);
    const QString text = box->text().replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    messages.push_back({static_cast<Icon>(box->icon() - 1),
                        desktop::From_Qt_Lossy(box->windowTitle()), desktop::From_Qt_Lossy(text),
                        box->windowFlags().testFlag(Qt::WindowStaysOnTopHint)});
    known = nullptr;
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
}

/// Not made while tests are listed, as the build does, where there may be no screen.
class Application final : public testing::Environment {
    void SetUp() override {
        static char name[] = "conformance";
        static char* arguments[] = {name, nullptr};
        static int count = 1;
        // Both live as long as the process: the toolkit's own statics may still ask for them.
        static const auto* application = new QApplication(count, arguments);
        desktop::Set_Up_Application();
        static auto* answers = new QTimer(QCoreApplication::instance());
        QObject::connect(answers, &QTimer::timeout, application, Answer);
        answers->start(10);
    }
};
const auto* const environment = testing::AddGlobalTestEnvironment(new Application);

}  // namespace

void Start(Handler start) {
    messages.clear();
    // An earlier program has told the toolkit to leave all loops; leaving one makes it forget that.
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    QApplication::exec();
    desktop::Begin(start);
    Advance(20);
}

void Advance(int milliseconds) {
    if (!Running()) return;
    // A loop of its own, for the end of the application's would be the end of a message box too.
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void Set_Surroundings(const std::string&) {}

void Click(Control_Ref control) {
    if (QAction* entry = desktop::Find_Live(control)->action) return entry->trigger();
    QWidget* widget = desktop::Find_Live(control)->widget;
    QWidget* part = widget->childAt(8, 8);  // the text of a combo box
    QTest::mouseClick(part != nullptr ? part : widget, Qt::LeftButton, {}, QPoint(8, 8));
}

void Double_Click(Control_Ref list) {
    const auto& view = static_cast<QListView&>(*desktop::Find_Live(list)->widget);
    const QPoint place = Place_Of_Entry(view, view.currentIndex().row());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
}

void Pick(Control_Ref list_or_combo, int index) {
    QWidget* widget = desktop::Find_Live(list_or_combo)->widget;
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        combo->showPopup();
        combo->view()->setCurrentIndex(combo->model()->index(index, 0));
        QTest::keyClick(combo->view(), Qt::Key_Return);
    } else {
        auto* view = static_cast<QListView*>(widget);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, Place_Of_Entry(*view, index));
    }
}

void Type(Control_Ref combo, const std::string& text) {
    QLineEdit* line = static_cast<QComboBox*>(desktop::Find_Live(combo)->widget)->lineEdit();
    line->selectAll();
    QTest::keyClicks(line, desktop::To_Qt(text));
    QTest::keyClick(line, Qt::Key_Escape);
    // The toolkit would pick the entry of that text when the focus goes.
    QFocusEvent gone(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(line, &gone);
}

void Press(const Window& window, Mouse_Button button, int x, int y) {
    QWidget* canvas = desktop::Find_Window(window)->canvas;
    const QPoint place = (QPointF(x, y) / canvas->devicePixelRatioF()).toPoint();
    QWidget* hit = canvas->childAt(place);
    if (hit == nullptr) hit = canvas;
    constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    QTest::mouseClick(hit, buttons[static_cast<int>(button)], {}, hit->mapFrom(canvas, place));
}

void Resize(const Window& window, int client_width, int client_height) {
    Window_Widget* widget = desktop::Find_Window(window);
    const QSize frame = widget->size() - widget->canvas->size();
    widget->resize((QSizeF(client_width, client_height) / widget->devicePixelRatioF()).toSize() +
                   frame);
    Advance(20);
}

void Do(Deed deed, const Window& window) {
    Advance(20);  // The news of what was done before may still be on its way.
    Window_Widget* widget = desktop::Find_Window(window);
    if (deed == Minimise) widget->showMinimized();
    if (deed == Restore) widget->showNormal();
    if (deed == Close) widget->close();
    Advance(20);
}

// Straight to where the X server's events go: the tests with a real screen press real keys.
void Key(int code, bool down) {
    const auto key = static_cast<desktop::Key_Id>(code);
    down ? desktop::Press_Key(key, {code}) : desktop::Release_Key(key);
}

void Press_Key(const Window& window, Stroke key) {
    QWidget* widget = desktop::Find_Window(window);
    if (widget->focusWidget() != nullptr) widget = widget->focusWidget();
    constexpr Qt::Key keys[] = {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space,
                                Qt::Key_Down};
    QTest::keyClick(widget, keys[key]);
}

void Type_Keys(const Window& window, const std::string& text) {
    QTest::keyClicks(desktop::Find_Window(window)->focusWidget(), desktop::To_Qt(text));
}

std::string Focus(const Window& window) {
    const Window_Widget* widget = desktop::Find_Window(window);
    const QWidget* focus = widget->focusWidget();
    for (; focus != nullptr; focus = focus->parentWidget()) {
        for (const desktop::Live_Control& control : widget->controls)
            if (control.widget == focus) return control.row->name;
    }
    return {};
}

std::optional<Spoken> Spoken_Of(Control_Ref control) {
    using QA = QAccessible;
    constexpr QA::Role roles[] = {QA::Grouping,    QA::StaticText, QA::Button,   QA::EditableText,
                                  QA::ComboBox,    QA::List,       QA::CheckBox, QA::RadioButton,
                                  QA::ProgressBar, QA::ComboBox,   QA::List,     QA::MenuItem,
                                  QA::NoRole,      QA::Graphic};
    const desktop::Live_Control* live = desktop::Find_Live(control);
    QWidget* part = live->widget->focusProxy();
    const QAccessibleInterface* told =
        QA::queryAccessibleInterface(part != nullptr ? part : live->widget);
    return Spoken{desktop::From_Qt_Lossy(told->text(QA::Name)),
                  told->role() == roles[static_cast<int>(live->row->kind)]};
}

Frame Frame_Of(const Window& window) {
    const Window_Widget* widget = desktop::Find_Window(window);
    const QPointF place = QPointF(widget->frameGeometry().topLeft()) * widget->devicePixelRatioF();
    return {place.toPoint().x(), place.toPoint().y(),
            widget->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint)};
}

std::vector<Message> Take_Messages() {
    return std::exchange(messages, {});
}

Colour Pixel(const Window& window, int x, int y) {
    Window_Widget* widget = desktop::Find_Window(window);
    const QColor colour = widget->canvas->grab().toImage().pixelColor(x, y);
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

}  // namespace driver
