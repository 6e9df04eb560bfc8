#pragma once

#include <QLabel>
#include <QListWidget>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace platform::desktop {

/// A list to walk through folders with: it shows where it is and, below, ".." and the subfolders. A
/// double click or the Enter key goes there.
class Folder_List final : public QWidget {
  public:
    /// Starts on the drive of Wine, else in the home folder.
    explicit Folder_List(QWidget* parent);

    /// The folder in Windows-1252, as the file system has it.
    const std::string& Path() const { return path; }

    /// Goes to a folder by its path, or back to the start by an empty one; false,
    /// changing nothing, if there is none, if it is the same, or if its own name holds characters
    /// that Windows-1252 does not have.
    bool Go_To(std::string_view program_path);

    /// Their names in Windows-1252, with "?" for what it does not have.
    std::vector<std::string> Subfolders() const;

    std::function<void()> moved;  ///< called when the user has gone to another folder

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Walk(const QListWidgetItem& item);
    void Lay_Out();

    QLabel* place;
    QListWidget* list;
    std::string path;
    std::vector<std::string> subfolders;  ///< in UTF-8
};

}  // namespace platform::desktop
