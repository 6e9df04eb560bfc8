#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/window.h"

/// The folder list: one folder, and its subfolders to go on to.
namespace platform::headless {

/// The folder by its whole path, whether it exists or not: from the working folder if the path
/// starts neither at a root nor with a drive; "." and ".." resolved; no separator at its end but a
/// root's. Empty if the working folder's own name cannot be told. Windows-1252.
std::string Whole_Path(std::string_view path);

/// Points the list at a folder and calls its handler.
void Move_Folder_List(Control_Ref control, const std::string& whole_path);

std::vector<std::string> Subfolders(std::string_view path);

}  // namespace platform::headless
