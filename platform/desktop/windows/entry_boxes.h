#pragma once

#include <QComboBox>
#include <QListView>
#include <QStringListModel>
#include <QValidator>

namespace platform::desktop {

struct Live_Control;
class Match_Model;

/// Refuses characters that the program's code page does not have, as they are typed.
class Code_Page_Validator final : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& text, int&) const override;
};

/// A list box in which one entry can be selected.
class Entry_List final : public QListView {
  public:
    Entry_List(Live_Control& control, QWidget* parent);

    /// Replaces all entries; none is selected then.
    void Set_Entries(const QStringList& texts) { entries->setStringList(texts); }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    Live_Control& live;
    QStringListModel* entries;
};

/// A combo box in which an entry is picked from the list or found by typing a part of it. Stays
/// quick with tens of thousands of entries: they come and go as one model.
class Entry_Combo final : public QComboBox {
  public:
    Entry_Combo(Live_Control& control, QWidget* parent);

    /// Replaces all entries.
    void Set_Entries(const QStringList& entries);

    /// Shows the control's text, picked or not.
    void Show_Text();

  protected:
    bool eventFilter(QObject* text_box, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void Build_Completer();
    void Fit_Text();
    void Mark_Hint();

    Live_Control& live;
    QStringListModel* model_of_entries;
    Match_Model* model_of_matches;
};

}  // namespace platform::desktop
