#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The way from the program's paths to the file system's, for the back-ends on POSIX systems.
namespace platform::posix {

/// The path as the file system takes it: UTF-8, parted by single "/", none at the end but a root's,
/// each name in the letter case that stands there. Where no such path stands, it follows the one
/// that gets furthest, and the names behind are as they were given. An empty path is ".", the
/// working folder. Empty for a path with a zero byte in it, which no file can have.
std::string Native_Path(std::string_view path);

/// The same for a file. If the folder that it is to lie in stands in just that letter case, the
/// file is that folder's or nobody's: the program's own files are never those of a twin folder.
std::string Native_File(std::string_view path);

enum class Entry_Kind : std::uint8_t { Any, File, Folder };

struct Entry {
    std::string lower;   ///< `name` in small letters
    std::string name;    ///< Windows-1252, "?" for what it does not have
    std::string native;  ///< as the file system has it
};

/// What stands in a folder, "." and ".." left out and links followed: ordinary files, folders, or
/// anything, in the order of the fields. Nothing if the folder cannot be read.
std::optional<std::vector<Entry>> Entries(const std::string& native_folder, Entry_Kind kind);

}  // namespace platform::posix
