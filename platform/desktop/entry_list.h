#pragma once

#include <QListView>
#include <QMouseEvent>
#include <QStringListModel>
#include <functional>

namespace platform::desktop {

/// A list box in which one entry can be selected.
class Entry_List final : public QListView {
  public:
    explicit Entry_List(QWidget* parent) : QListView(parent), entries(new QStringListModel(this)) {
        setModel(entries);
        setUniformItemSizes(true);
        setTextElideMode(Qt::ElideNone);
        setEditTriggers(NoEditTriggers);
    }

    /// Replaces all entries; none is selected then.
    void Set_Entries(const QStringList& texts) { entries->setStringList(texts); }

    int Picked() const {
        const QModelIndexList rows = selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.front().row();
    }

    std::function<void()> double_clicked;  ///< also beside the entries

  protected:
    /// A click beside the entries leaves the selection.
    void mousePressEvent(QMouseEvent* event) override {
        if (indexAt(event->pos()).isValid()) QListView::mousePressEvent(event);
    }

    void mouseDoubleClickEvent(QMouseEvent* event) override {
        QListView::mouseDoubleClickEvent(event);
        if (double_clicked) double_clicked();
    }

  private:
    QStringListModel* entries;
};

}  // namespace platform::desktop
