#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/windows/native.h"

/// The way from the program's paths to the system's, and what stands in a folder.
namespace platform::windows {

/// What the system makes of a path by the working folder and the drives' current folders: no "."
/// and "..", and no separator at its end but a root's.
std::wstring Whole_Path(const std::wstring& path);

/// A whole path in the form that is not cut at 260 characters; empty for a device's name.
std::wstring Long_Form(const std::wstring& whole);

/// A program's path in that form. A drive's name alone is the drive's root, since the program joins
/// it with "\" to reach what lies there. Empty for a path that no file can have: one with a zero
/// byte in it, or a device's name.
std::wstring Native_Path(std::string_view path);

bool Is_Folder(const std::wstring& whole);

/// The attributes of what stands there, a link followed; INVALID_FILE_ATTRIBUTES if nothing does.
DWORD Attributes_Of(const std::wstring& native);

enum class Entry_Kind : std::uint8_t { File, Folder };

/// Native names of the ordinary files or of the subfolders of a folder, without what is hidden or
/// the system's own, in the order of their lower-case Windows-1252 bytes, then of the names as they
/// are. Nothing if the folder cannot be read.
std::optional<std::vector<std::wstring>> Names_In(const std::wstring& native, Entry_Kind kind);

/// An open file or folder that closes itself.
class File_Handle {
  public:
    explicit File_Handle(HANDLE handle) : handle_(handle) {}
    File_Handle(const File_Handle&) = delete;
    File_Handle& operator=(const File_Handle&) = delete;
    ~File_Handle() {
        if (Is_Open()) ::CloseHandle(handle_);
    }

    bool Is_Open() const { return handle_ != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return handle_; }

  private:
    HANDLE handle_;
};

/// Whoever has the file open may go on with it, whatever they do.
inline constexpr DWORD Share_All = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

}  // namespace platform::windows
