#include <cstddef>
#include <cstring>
#include <string>

#include "platform/files.h"
#include "platform/windows/paths.h"
#include "platform/windows/text.h"

namespace platform {

namespace {

using windows::File_Handle;

/// The file behind a link, so that the file is replaced and the link stays.
std::wstring Link_Target(const std::wstring& native) {
    const DWORD attributes = GetFileAttributesW(native.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return native;
    }
    const File_Handle file(CreateFileW(native.c_str(), 0, windows::Share_All, nullptr,
                                       OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    if (!file.Is_Open()) return native;
    std::wstring target(GetFinalPathNameByHandleW(file.Get(), nullptr, 0, 0), L'\0');
    const auto size = static_cast<DWORD>(target.size());
    target.resize(GetFinalPathNameByHandleW(file.Get(), target.data(), size, 0));
    return target.empty() ? native : target;
}

/// Whether `name` is `file`, a dot, the number of a process and ".tmp".
bool Is_Temporary(std::wstring_view name, const std::wstring& file) {
    if (!name.starts_with(file + L".")) return false;
    name.remove_prefix(file.size() + 1);
    const std::size_t number = name.find_first_not_of(L"0123456789");
    return number != 0 && number != std::wstring_view::npos && name.substr(number) == L".tmp";
}

/// One that is still being written is open to nobody else, and stays.
void Remove_Leftovers_Of(const std::wstring& native) {
    const std::size_t name = native.rfind(L'\\') + 1;
    const std::wstring folder = native.substr(0, name);
    const auto entries = windows::Names_In(folder, windows::Entry_Kind::File);
    for (const std::wstring& entry : entries.value_or(std::vector<std::wstring>())) {
        if (Is_Temporary(entry, native.substr(name))) DeleteFileW((folder + entry).c_str());
    }
}

bool Fill(const File_Handle& file, std::span<const std::uint8_t> bytes) {
    DWORD written = 0;
    const auto size = static_cast<DWORD>(bytes.size());
    if (!WriteFile(file.Get(), bytes.data(), size, &written, nullptr)) return false;
    if (written < size) SetLastError(ERROR_DISK_FULL);  // which Wine leaves untold
    return written == size && FlushFileBuffers(file.Get());
}

/// Gives an open file another name, over the file that has it. A program that watches files (a
/// virus scanner, say) may hold the old one for a moment.
bool Rename(const File_Handle& file, const std::wstring& native) {
    constexpr int Tries = 20;
    constexpr DWORD Between_Tries = 50;  // milliseconds
    FILE_RENAME_INFO head{};
    head.ReplaceIfExists = TRUE;
    head.FileNameLength = static_cast<DWORD>(native.size() * sizeof(wchar_t));
    std::vector<char> request(sizeof head + head.FileNameLength);
    std::memcpy(request.data(), &head, sizeof head);
    std::memcpy(request.data() + offsetof(FILE_RENAME_INFO, FileName), native.data(),
                head.FileNameLength);
    for (int i = 0; i < Tries; ++i) {
        if (i > 0) ::Sleep(Between_Tries);
        if (SetFileInformationByHandle(file.Get(), FileRenameInfo, request.data(),
                                       static_cast<DWORD>(request.size()))) {
            return true;
        }
        const DWORD error = ::GetLastError();
        if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) return false;
    }
    return false;
}

/// Nothing, or the reason of the failure. The file is open to nobody else until it has its name,
/// which is on the disk then.
std::optional<DWORD> Write(const std::wstring& temporary, const std::wstring& native,
                           std::span<const std::uint8_t> bytes) {
    {
        const File_Handle file(CreateFileW(temporary.c_str(), GENERIC_WRITE | DELETE, 0, nullptr,
                                           CREATE_ALWAYS, FILE_FLAG_WRITE_THROUGH, nullptr));
        if (!file.Is_Open() || !Fill(file, bytes)) return ::GetLastError();
        if (Rename(file, native)) return std::nullopt;
    }
    // A file system of others may rename by name alone.
    constexpr DWORD Flags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (MoveFileExW(temporary.c_str(), native.c_str(), Flags)) return std::nullopt;
    return ::GetLastError();
}

std::string Words_Of(DWORD error) {
    std::wstring words(512, L'\0');
    words.resize(FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                error, 0, words.data(), 512, nullptr));
    while (!words.empty() && (words.back() <= L' ' || words.back() == L'.'))
        words.pop_back();
    return words.empty() ? "error " + std::to_string(error) : windows::From_Wide_Lossy(words);
}

}  // namespace

std::string Write_File(std::string_view path, std::span<const std::uint8_t> bytes) {
    const std::wstring native = Link_Target(windows::Native_Path(path));
    const std::wstring temporary =
        native + L"." + std::to_wstring(::GetCurrentProcessId()) + L".tmp";
    Remove_Leftovers_Of(native);
    const auto reason = Write(temporary, native, bytes);
    if (!reason) return {};
    DeleteFileW(temporary.c_str());
    return Words_Of(*reason);
}

void Remove_Leftovers(std::string_view path) {
    Remove_Leftovers_Of(Link_Target(windows::Native_Path(path)));
}

}  // namespace platform
