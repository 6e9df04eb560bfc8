#include "platform/desktop/folder_list.h"

#include <QEvent>
#include <QFontMetrics>
#include <algorithm>
#include <filesystem>
#include <utility>

#include "platform/code_page.h"
#include "platform/controls.h"
#include "platform/desktop/handlers.h"
#include "platform/desktop/live_control.h"
#include "platform/desktop/windows.h"
#include "platform/message_box.h"
#include "platform/posix/native_path.h"
#include "platform/program.h"

namespace platform {

namespace desktop {

namespace {

namespace fs = std::filesystem;

/// Native names of the subfolders, in the order of their lower-case bytes.
std::vector<std::string> Native_Subfolders(const std::string& native) {
    std::vector<std::pair<std::string, std::string>> keyed;
    std::error_code error;
    for (fs::directory_iterator entry(native, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unreadable;
        if (!entry->is_directory(unreadable)) continue;
        std::string name = entry->path().filename().string();
        std::string key = Lower_Case(From_Utf8_Lossy(name));
        keyed.emplace_back(std::move(key), std::move(name));
    }
    std::sort(keyed.begin(), keyed.end());
    std::vector<std::string> names;
    for (auto& [key, name] : keyed)
        names.push_back(std::move(name));
    return names;
}

/// The whole path without "." and "..", and without a separator at its end unless it is a root.
std::string Whole_Path(const std::string& native) {
    std::error_code error;
    const fs::path whole = fs::absolute(native, error).lexically_normal();
    return whole.has_filename() || whole == whole.root_path() ? whole.string()
                                                              : whole.parent_path().string();
}

bool Is_Folder(const std::string& native) {
    std::error_code error;
    return fs::is_directory(native, error);
}

void Refuse(const std::string& native) {
    Message_Box("The folder \"" + From_Utf8_Lossy(native) +
                    "\" cannot be used, because its name holds characters that this program cannot "
                    "write.",
                Icon::Exclamation, Message_Title);
}

}  // namespace

Folder_List::Folder_List(QWidget* parent)
    : QWidget(parent), place(new QLabel(this)), list(new QListWidget(this)) {
    place->setTextFormat(Qt::PlainText);
    setFocusProxy(list);
    setFocusPolicy(list->focusPolicy());  // the proxy's own does not count in the order of Tab
    list->setUniformItemSizes(true);
    list->setTextElideMode(Qt::ElideNone);
    connect(list, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { Walk(*item); });
    if (!Go_To("")) Go_To("/");
}

bool Folder_List::Go_To(std::string_view program_path) {
    const std::string native = posix::Native_Path(program_path);
    return !native.empty() && Go_To_Native(Whole_Path(native));
}

bool Folder_List::Go_To_Native(const std::string& native) {
    const std::optional<std::string> text = From_Utf8(native);
    if (!text || native == native_path || !Is_Folder(native)) return false;
    path = *text;
    native_path = native;
    Fill();
    return true;
}

void Folder_List::Walk(const QListWidgetItem& item) {
    if (Is_Busy()) return;
    const int row = list->row(&item) - (native_path == "/" ? 0 : 1);
    const fs::path here(native_path);
    const std::string native = row < 0
                                   ? here.parent_path().string()
                                   : (here / subfolders[static_cast<std::size_t>(row)]).string();
    if (!From_Utf8(native)) {
        const Handler_Scope scope;
        Refuse(native);
    } else if (Go_To_Native(native) && moved) {
        moved();
    }
}

std::vector<std::string> Folder_List::Subfolders() const {
    std::vector<std::string> names;
    for (const std::string& name : subfolders)
        names.push_back(From_Utf8_Lossy(name));
    return names;
}

void Folder_List::Fill() {
    subfolders = Native_Subfolders(native_path);
    list->clear();
    if (native_path != "/") list->addItem(QStringLiteral(".."));
    for (const std::string& name : subfolders)
        list->addItem(QString::fromStdString(name));
    list->setCurrentRow(0);
    place->setToolTip(QString::fromStdString(native_path));
    Lay_Out();
}

/// The place on a line of its own, its end in view if it is too long, and the list below.
void Folder_List::Lay_Out() {
    const QFontMetrics metrics(place->font());
    const int line = metrics.height() + 2;
    place->setGeometry(0, 0, width(), line);
    place->setText(metrics.elidedText(QString::fromStdString(native_path), Qt::ElideLeft, width()));
    list->setGeometry(0, line, width(), std::max(0, height() - line));
}

void Folder_List::resizeEvent(QResizeEvent*) {
    Lay_Out();
}

void Folder_List::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) Lay_Out();
}

}  // namespace desktop

namespace {

desktop::Folder_List* Find_Folder_List(Control_Ref control) {
    const desktop::Live_Control* live = desktop::Find_Live(control);
    if (live == nullptr || live->row->kind != Control_Kind::Folder) return nullptr;
    return static_cast<desktop::Folder_List*>(live->widget);
}

}  // namespace

std::string Folder_Path(Control_Ref control) {
    const desktop::Folder_List* list = Find_Folder_List(control);
    return list != nullptr ? list->Path() : std::string();
}

void Set_Folder_Path(Control_Ref control, std::string_view path) {
    desktop::Folder_List* list = Find_Folder_List(control);
    if (list != nullptr && list->Go_To(path)) {
        desktop::Call(control.window->controls[control.index].handler);
    }
}

}  // namespace platform
