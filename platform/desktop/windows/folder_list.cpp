#include "platform/desktop/windows/folder_list.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFontMetrics>
#include <algorithm>

#include "platform/code_page.h"
#include "platform/desktop/drawing/text.h"
#include "platform/desktop/windows/window_widget.h"
#include "platform/files.h"
#include "platform/posix/native_path.h"
#include "platform/program.h"

namespace platform::desktop {

namespace {

std::string Joined(const std::string& folder, const std::string& name) {
    return folder.back() == '/' ? folder + name : folder + "/" + name;
}

/// A letter goes to the next entry that begins with it, however fast letters come.
class Rows final : public QListWidget {
  public:
    using QListWidget::QListWidget;

    void keyboardSearch(const QString& letter) override {
        for (int step = 1; step <= count(); ++step) {
            const int row = (currentRow() + step) % count();
            if (item(row)->text().startsWith(letter, Qt::CaseInsensitive))
                return setCurrentRow(row);
        }
    }
};

/// Where a user begins to look for the simulator: on the drive of Wine, else in the home folder.
QString Start_Folder() {
    QString prefix = qEnvironmentVariable("WINEPREFIX");
    if (prefix.isEmpty()) prefix = QDir::homePath() + "/.wine";
    const QString drive = prefix + "/drive_c";
    return QFileInfo(drive).isDir() ? drive : QDir::homePath();
}

}  // namespace

Folder_List::Folder_List(QWidget* parent)
    : QWidget(parent), place(new QLabel(this)), list(new Rows(this)) {
    place->setTextFormat(Qt::PlainText);
    setFocusProxy(list);
    setFocusPolicy(list->focusPolicy());  // the proxy's own does not count in the order of Tab
    list->setUniformItemSizes(true);
    list->setTextElideMode(Qt::ElideNone);
    // A desktop's theme may open entries by one click; the second of a double click would open one
    // more.
    list->setStyleSheet(QStringLiteral("activate-on-singleclick: 0"));
    connect(list, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { Walk(*item); });
    if (!Go_To("")) Go_To("/");
}

bool Folder_List::Go_To(std::string_view program_path) {
    std::string native =
        program_path.empty() ? Start_Folder().toStdString() : posix::Native_Path(program_path);
    if (native == ".") native = To_Utf8(Current_Folder());
    const std::optional<std::string> text = From_Utf8(native);
    if (!native.starts_with('/') || !text || text == path || !Folder_Exists(*text)) return false;
    path = *text;
    subfolders = platform::Subfolders(path);
    list->clear();
    if (path != "/") list->addItem(QStringLiteral(".."));
    for (const std::string& name : subfolders)
        list->addItem(QString::fromStdString(name));
    list->setCurrentRow(0);
    place->setToolTip(To_Qt(path));
    Lay_Out();
    return true;
}

void Folder_List::Walk(const QListWidgetItem& item) {
    if (Is_Busy()) return;
    const int row = list->row(&item) - (path == "/" ? 0 : 1);
    const std::size_t last = path.find_last_of('/');
    const std::string to = row < 0
                               ? To_Utf8(path.substr(0, std::max<std::size_t>(last, 1)))
                               : Joined(To_Utf8(path), subfolders[static_cast<std::size_t>(row)]);
    if (const auto text = From_Utf8(to)) {
        if (Go_To(*text) && moved) moved();
        return;
    }
    Refuse_Folder(From_Utf8_Lossy(to));
}

std::vector<std::string> Folder_List::Subfolders() const {
    std::vector<std::string> names;
    for (const std::string& name : subfolders)
        names.push_back(From_Utf8_Lossy(name));
    return names;
}

/// The place on a line of its own, its end in view if it is too long, and the list below.
void Folder_List::Lay_Out() {
    const QFontMetrics metrics(place->font());
    const int line = metrics.height() + 2;
    place->setGeometry(0, 0, width(), line);
    place->setText(metrics.elidedText(To_Qt(path), Qt::ElideLeft, width()));
    list->setGeometry(0, line, width(), std::max(0, height() - line));
}

void Folder_List::resizeEvent(QResizeEvent*) {
    Lay_Out();
}

void Folder_List::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) Lay_Out();
}

}  // namespace platform::desktop
