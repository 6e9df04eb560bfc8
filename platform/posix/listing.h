#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What stands in a folder. Folders go by native paths here, as the file system takes them.
namespace platform::posix {

enum class Entry_Kind : std::uint8_t { File, Folder };

/// Names of the ordinary files or of the subfolders of a folder, links followed, in Windows-1252
/// with "?" for what it does not have, in the order of their lower-case bytes (of equal ones, of
/// the names as they are). Nothing if the folder cannot be read.
std::optional<std::vector<std::string>> Names_In(const std::string& native_folder, Entry_Kind kind);

/// The native name of the first entry, in that order, whose name is `name` in any case; empty if
/// there is none. `name` is Windows-1252. Listings are kept while their folder stays unchanged, so
/// that opening all files of a folder one after the other does not list it for each.
std::string Find_In_Any_Case(const std::string& native_folder, std::string_view name);

}  // namespace platform::posix
