#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Files and folders by the program's own paths.
///
/// A path is Windows-1252 text whose folders are parted by "\" or "/", in any mixture; separators
/// in a row count as one, and "." and ".." are followed by the text alone. It starts at the root if
/// it starts with a separator, else at the working folder. On a file system that minds case each
/// name is found in any case, an exact match first, then the others in the order of `File_Names`: a
/// folder in which the rest of the path is not found is left for the next one. A path that names
/// nothing is no error in itself: each operation says what it answers then.
namespace platform {

using Bytes = std::vector<std::uint8_t>;

/// The longest file that is read, in bytes: positions inside files are signed 32-bit numbers.
/// A longer one counts as one that cannot be read.
inline constexpr std::size_t Largest_File = 0x7FFFFFFF;

/// Whether an ordinary file, or a link to one, stands there.
bool File_Exists(std::string_view path);

/// Whether a folder, or a link to one, stands there. An empty path is the working folder.
bool Folder_Exists(std::string_view path);

/// Names of the ordinary files of a folder, not of its subfolders, that end in `ending` in any
/// case (".bgl", say): as the file system has them, in the order of their lower-case bytes, then of
/// the names as they are. A character that Windows-1252 does not have comes as "?", so that such a
/// file is counted but cannot be opened. Nothing if the folder cannot be read.
std::optional<std::vector<std::string>> File_Names(std::string_view folder,
                                                   std::string_view ending);

/// Names of the subfolders of a folder, "." and ".." left out, in the order of `File_Names` but in
/// UTF-8, so that a user can be shown what Windows-1252 does not have. Empty if the folder cannot
/// be read.
std::vector<std::string> Subfolders(std::string_view folder);

/// Reads the whole file and adds `spare` zero bytes behind it. On failure (no file, no right to
/// read it, a read error) `bytes` is left empty and the answer is false.
bool Read_File(std::string_view path, Bytes& bytes, std::size_t spare = 0);

/// Reads just `part.size()` bytes from `offset` on; false if the file does not hold that many.
bool Read_File_Part(std::string_view path, std::size_t offset, std::span<std::uint8_t> part);

/// Writes the whole file: to a temporary name beside it ("NAME.PROCESS.tmp", with the process's
/// number), to the disk, then renamed over the old one, and the folder to the disk. A failure
/// leaves the old file as it was and no other file behind; a process that is ended meanwhile leaves
/// the temporary file. Leftovers of the file are removed first. Answers an empty text, or the
/// reason of the failure in the platform's words.
std::string Write_File(std::string_view path, std::span<const std::uint8_t> bytes);

/// Removes the temporary files beside a file that processes which have ended while writing it have
/// left; one that any process is still writing stays. Failures are ignored.
void Remove_Leftovers(std::string_view path);

/// Deletes a file; failures are ignored.
void Delete_File(std::string_view path);

}  // namespace platform
