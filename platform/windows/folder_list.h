#pragma once

#include "platform/windows/live.h"

/// Lists to find a folder with: the drives, and the folders of one of them. A folder list shows
/// where it is and, below, ".." and the subfolders. A double click or the Enter key goes there.
namespace platform::windows {

void Fill_Drives(Live_Control& list);

/// Starts in the working folder.
void Set_Up_Folder_List(Live_Control& list);

/// Goes where the user points.
void Walk_Folder_List(Live_Control& list);

}  // namespace platform::windows
