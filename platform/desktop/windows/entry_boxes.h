#pragma once

#include <QComboBox>
#include <QListView>
#include <QStringListModel>
#include <QValidator>
#include <functional>

namespace platform::desktop {

/// Refuses characters that the program's code page does not have, as they are typed.
class Code_Page_Validator final : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& text, int&) const override;
};

/// A list box in which one entry can be selected.
class Entry_List final : public QListView {
  public:
    explicit Entry_List(QWidget* parent);

    /// Replaces all entries; none is selected then.
    void Set_Entries(const QStringList& texts) { entries->setStringList(texts); }

    int Picked() const;

    std::function<void()> double_clicked;  ///< also beside the entries

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    QStringListModel* entries;
};

/// A combo box in which an entry is picked from the list or found by typing a part of it. Stays
/// quick with tens of thousands of entries: they come and go as one model.
class Entry_Combo final : public QComboBox {
  public:
    explicit Entry_Combo(QWidget* parent);

    /// Replaces all entries. Nothing is picked then; a text that was picked goes, another stays.
    void Set_Entries(const QStringList& entries);

    /// Shows a text that is not a pick.
    void Set_Free_Text(const QString& text);

    /// The entry that was picked; -1 after typing, even of an entry's very text.
    int Picked() const { return picked; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Build_Completer();
    void Fit_Text();

    QStringListModel* model_of_entries;
    int picked = -1;
};

}  // namespace platform::desktop
