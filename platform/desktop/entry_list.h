#pragma once

#include <QListView>
#include <QStringListModel>

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

  private:
    QStringListModel* entries;
};

}  // namespace platform::desktop
