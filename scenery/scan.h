#pragma once

#include <optional>
#include <span>
#include <string>

#include "scenery/catalogue.h"

/// The scan of the whole scenery for airports and for files with airspaces, a BGL file a step.
namespace skerrand {

inline constexpr const char* Bgl_Ending = ".bgl";  ///< of the scenery's files, in any case

/// Files and folders of the scenery that are there and cannot be read.
struct Unread_Files {
    int count = 0;
    std::string first;  ///< the path of one of them
};

/// Reads the list of areas and counts their BGL files, which is the answer; nothing if scenery.cfg
/// cannot be read. Empties the tables. A simulator of another version than FS2002 has no areas.
/// `drive_entries` are those that `Resolve_Local_Paths` takes.
std::optional<int> Prepare_Scan(std::span<const std::string> drive_entries);

/// The area whose turn it is; null behind the last one.
const Scenery_Area* Area_In_Hand();

/// Reads the next file of that area into the tables. Without one it goes on to the next area, and
/// answers false. A file or folder that cannot be read counts as one that holds nothing.
bool Scan_Next_File();

/// What of the scenery could not be read so far.
const Unread_Files& Unread_In_Scan();

}  // namespace skerrand
