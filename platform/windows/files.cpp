#include "platform/files.h"

#include <algorithm>
#include <exception>
#include <optional>

#include "platform/code_page.h"
#include "platform/windows/paths.h"
#include "platform/windows/text.h"

namespace platform {

namespace {

using windows::File_Handle;
using windows::Native_Path;

/// A scan holds a file open that another program may want to write or delete, and the other way
/// round.
HANDLE Open_To_Read(std::string_view path) {
    return CreateFileW(Native_Path(path).c_str(), GENERIC_READ, windows::Share_All, nullptr,
                       OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
}

/// Size of an open ordinary file; nothing for anything else.
std::optional<std::uint64_t> Size_Of(const File_Handle& file) {
    LARGE_INTEGER size;
    if (!file.Is_Open() || GetFileType(file.Get()) != FILE_TYPE_DISK) return std::nullopt;
    if (!GetFileSizeEx(file.Get(), &size)) return std::nullopt;
    return static_cast<std::uint64_t>(size.QuadPart);
}

/// Reads until the part is full or the file ends. The bytes read; nothing on an error.
std::optional<std::size_t> Read_At(const File_Handle& file, std::size_t offset,
                                   std::span<std::uint8_t> part) {
    LARGE_INTEGER place;
    place.QuadPart = static_cast<LONGLONG>(offset);
    if (!SetFilePointerEx(file.Get(), place, nullptr, FILE_BEGIN)) return std::nullopt;
    std::size_t done = 0;
    DWORD count = 0;
    do {
        const auto left = static_cast<DWORD>(part.size() - done);
        if (!ReadFile(file.Get(), part.data() + done, left, &count, nullptr)) return std::nullopt;
        done += count;
    } while (count > 0 && done < part.size());
    return done;
}

bool Read_Whole(const File_Handle& file, Bytes& bytes, std::size_t spare) {
    const auto size = Size_Of(file);
    if (!size || *size > Largest_File) return false;
    const auto whole = static_cast<std::size_t>(*size);
    try {
        // What the buffer held is overwritten, not cleared first: a buffer that serves one file
        // after the other is not filled with zeros ahead of each.
        bytes.resize(whole + spare);
    } catch (const std::exception&) {  // too long for the memory or for a vector
        return false;
    }
    const auto done = Read_At(file, 0, std::span(bytes).first(whole));
    if (!done) return false;
    bytes.resize(*done + spare);  // shorter if the file has shrunk since it was opened
    std::fill(bytes.end() - static_cast<std::ptrdiff_t>(spare), bytes.end(), std::uint8_t{0});
    return true;
}

}  // namespace

bool File_Exists(std::string_view path) {
    const DWORD attributes = windows::Attributes_Of(Native_Path(path));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool Folder_Exists(std::string_view path) {
    const DWORD attributes = windows::Attributes_Of(Native_Path(path));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::optional<std::vector<std::string>> File_Names(std::string_view folder,
                                                   std::string_view ending) {
    const auto natives = windows::Names_In(Native_Path(folder), windows::Entry_Kind::File);
    if (!natives) return std::nullopt;
    std::vector<std::string> names;
    for (const std::wstring& native : *natives) {
        std::string name = windows::From_Wide_Lossy(native);
        if (Lower_Case(name).ends_with(Lower_Case(ending))) names.push_back(std::move(name));
    }
    return names;
}

std::vector<std::string> Subfolders(std::string_view folder) {
    std::vector<std::string> names;
    const auto natives = windows::Names_In(Native_Path(folder), windows::Entry_Kind::Folder);
    for (const std::wstring& native : natives.value_or(std::vector<std::wstring>()))
        names.push_back(windows::Utf8_Of(native));
    return names;
}

bool Read_File(std::string_view path, Bytes& bytes, std::size_t spare) {
    const bool read = Read_Whole(File_Handle(Open_To_Read(path)), bytes, spare);
    if (!read) bytes.clear();
    return read;
}

bool Read_File_Part(std::string_view path, std::size_t offset, std::span<std::uint8_t> part) {
    const File_Handle file(Open_To_Read(path));
    return Size_Of(file) && Read_At(file, offset, part) == part.size();
}

void Delete_File(std::string_view path) {
    DeleteFileW(Native_Path(path).c_str());
}

}  // namespace platform
