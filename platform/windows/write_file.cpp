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

bool Fill(const std::wstring& temporary, std::span<const std::uint8_t> bytes) {
    const File_Handle file(CreateFileW(temporary.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                       FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file.Is_Open()) return false;
    DWORD written = 0;
    const auto size = static_cast<DWORD>(bytes.size());
    return WriteFile(file.Get(), bytes.data(), size, &written, nullptr) && written == size &&
           FlushFileBuffers(file.Get());
}

/// A program that watches files (a virus scanner, say) may hold the old one for a moment.
bool Replace(const std::wstring& temporary, const std::wstring& native) {
    constexpr int Tries = 10;
    constexpr DWORD Between_Tries = 50;  // milliseconds
    for (int i = 0; i < Tries; ++i) {
        if (i > 0) ::Sleep(Between_Tries);
        if (MoveFileExW(temporary.c_str(), native.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
            return true;
        }
        if (::GetLastError() != ERROR_SHARING_VIOLATION) return false;
    }
    return false;
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
    if (Fill(temporary, bytes) && Replace(temporary, native)) return {};
    const DWORD reason = ::GetLastError();
    DeleteFileW(temporary.c_str());
    return Words_Of(reason);
}

void Remove_Leftovers(std::string_view path) {
    Remove_Leftovers_Of(Link_Target(windows::Native_Path(path)));
}

}  // namespace platform
