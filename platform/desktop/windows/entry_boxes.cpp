#include "platform/desktop/windows/entry_boxes.h"

#include <QAbstractProxyModel>
#include <QAccessibleWidget>
#include <QCompleter>
#include <QFontMetrics>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/windows/window_widget.h"

namespace platform::desktop {

/// The entries that match what was typed; only those on the screen are made.
class Match_Model final : public QAbstractListModel {
  public:
    Match_Model(const Live_Control& combo, QObject* parent)
        : QAbstractListModel(parent), live(combo) {}

    void Renew() {
        beginResetModel();
        matches = live.matches;
        endResetModel();
    }

    int Entry(int row) const { return static_cast<int>(matches[static_cast<std::size_t>(row)]); }

    int rowCount(const QModelIndex&) const override { return static_cast<int>(matches.size()); }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
        return To_Qt(live.entries[static_cast<std::size_t>(Entry(index.row()))]);
    }

  private:
    const Live_Control& live;
    std::vector<std::size_t> matches;
};

namespace {

constexpr int Rows_Shown = 14;

/// A list that takes its measures from one row, and shows entries in full.
void Set_Up_View(QListView& view) {
    view.setUniformItemSizes(true);
    view.setTextElideMode(Qt::ElideNone);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
}

QListView* New_List_View() {
    auto* view = new QListView;
    Set_Up_View(*view);
    return view;
}

/// Width of a list that shows the entries in full. Only the longest by count are measured, for
/// measuring takes far longer than anything else here.
int List_Width(const QStringList& entries, const QAbstractItemView& view) {
    qsizetype longest = 0;
    for (const QString& entry : entries)
        longest = std::max(longest, entry.size());
    const QFontMetrics metrics(view.font());
    int width = 0;
    for (const QString& entry : entries) {
        if (entry.size() * 4 > longest * 3)
            width = std::max(width, metrics.horizontalAdvance(entry));
    }
    return width + view.verticalScrollBar()->sizeHint().width() + metrics.averageCharWidth() * 3;
}

/// The toolkit's own would tell the text of a combo box in place of its name.
class Spoken_Combo final : public QAccessibleWidget {
  public:
    explicit Spoken_Combo(QComboBox* box)
        : QAccessibleWidget(box, QAccessible::ComboBox), combo(box) {}

    QString text(QAccessible::Text part) const override {
        return part == QAccessible::Value ? combo->currentText() : QAccessibleWidget::text(part);
    }
    QAccessibleInterface* focusChild() const override {
        return QAccessible::queryAccessibleInterface(combo->lineEdit());
    }

  private:
    QComboBox* combo;
};

QAccessibleInterface* Speak(const QString&, QObject* object) {
    auto* combo = dynamic_cast<Entry_Combo*>(object);
    return combo != nullptr ? new Spoken_Combo(combo) : nullptr;
}

}  // namespace

QValidator::State Code_Page_Validator::validate(QString& text, int&) const {
    return From_Qt(text).has_value() ? Acceptable : Invalid;
}

Entry_List::Entry_List(Live_Control& control, QWidget* parent)
    : QListView(parent), live(control), entries(new QStringListModel(this)) {
    setModel(entries);
    Set_Up_View(*this);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const QModelIndexList picked = selectionModel()->selectedRows();
        Take_Pick(live, picked.isEmpty() ? -1 : picked.front().row());
    });
}

/// A click beside the entries leaves the selection.
void Entry_List::mousePressEvent(QMouseEvent* event) {
    if (indexAt(event->pos()).isValid()) QListView::mousePressEvent(event);
}

void Entry_List::mouseDoubleClickEvent(QMouseEvent* event) {
    QListView::mouseDoubleClickEvent(event);
    Fire(live);  // also beside the entries
}

/// The first arrow key selects the entry that the focus is on.
void Entry_List::keyPressEvent(QKeyEvent* event) {
    const bool is_arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (!is_arrow || live.selected >= 0) return QListView::keyPressEvent(event);
    selectionModel()->select(currentIndex(), QItemSelectionModel::Select);
}

/// When the key goes up: a window that waits for keys would take one that is down for its own.
void Entry_List::keyReleaseEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool opens = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
    if (opens && !event->isAutoRepeat()) Fire(live);
}

Entry_Combo::Entry_Combo(Live_Control& control, QWidget* parent)
    : QComboBox(parent),
      live(control),
      model_of_entries(new QStringListModel(this)),
      model_of_matches(new Match_Model(control, this)) {
    setView(New_List_View());
    setModel(model_of_entries);
    setEditable(true);
    setInsertPolicy(NoInsert);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(Rows_Shown);
    lineEdit()->setValidator(new Code_Page_Validator(this));
    // The toolkit's own box would pick the entry whose text was typed as soon as the focus goes.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    Build_Completer();
    QAccessible::installFactory(Speak);
    connect(this, &QComboBox::activated, this, [this](int index) { Take_Pick(live, index); });
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& typed) {
        Take_Typed(live, From_Qt_Lossy(typed));
        model_of_matches->Renew();
    });
    connect(lineEdit(), &QLineEdit::returnPressed, this, [this] { Take_Return(live); });
    connect(lineEdit(), &QLineEdit::textChanged, this, [this] { Fit_Text(); });
    lineEdit()->installEventFilter(this);
}

void Entry_Combo::Build_Completer() {
    auto* completer = new QCompleter(this);
    completer->setPopup(New_List_View());
    completer->setModel(model_of_matches);
    completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer->setMaxVisibleItems(Rows_Shown);
    setCompleter(completer);
    // An entry that the arrow keys have reached stands in the text box, so it is picked.
    const auto take = [this, completer](const QModelIndex& index) {
        const auto* proxy = qobject_cast<QAbstractProxyModel*>(completer->completionModel());
        // Past the last one, and ahead of the first, they lead back to the typed text.
        if (!index.isValid()) return Take_Typed(live, From_Qt_Lossy(completer->completionPrefix()));
        Take_Pick(live, model_of_matches->Entry(proxy->mapToSource(index).row()));
    };
    connect(completer, qOverload<const QModelIndex&>(&QCompleter::highlighted), this, take);
    connect(completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this, take](const QModelIndex& index) {
                take(index);
                Show_Text();
            });
}

void Entry_Combo::Mark_Hint() {
    if (Shows_Hint(live)) lineEdit()->selectAll();
}

bool Entry_Combo::eventFilter(QObject* text_box, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) Mark_Hint();
    return QComboBox::eventFilter(text_box, event);
}

void Entry_Combo::focusInEvent(QFocusEvent* event) {
    QComboBox::focusInEvent(event);
    Mark_Hint();
}

/// A name a little too long for the box is condensed rather than cut.
void Entry_Combo::Fit_Text() {
    lineEdit()->setFont(font());
    const int room = lineEdit()->width() - 2 * lineEdit()->fontMetrics().averageCharWidth();
    Condense_To_Fit(*lineEdit(), lineEdit()->text(), room);
}

void Entry_Combo::resizeEvent(QResizeEvent* event) {
    QComboBox::resizeEvent(event);
    Fit_Text();
}

/// Turned over the box in passing the wheel would pick another entry, unnoticed.
void Entry_Combo::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void Entry_Combo::Set_Entries(const QStringList& entries) {
    model_of_entries->setStringList(entries);
    model_of_matches->Renew();
    const int list_width = List_Width(entries, *view());
    view()->setMinimumWidth(list_width);
    completer()->popup()->setMinimumWidth(list_width);
}

void Entry_Combo::Show_Text() {
    setCurrentIndex(live.selected);
    setEditText(To_Qt(live.text));
    lineEdit()->setCursorPosition(0);
    if (hasFocus()) Mark_Hint();
}

}  // namespace platform::desktop
