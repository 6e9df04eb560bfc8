#include "platform/windows/paths.h"

#include <algorithm>
#include <utility>

#include "platform/code_page.h"
#include "platform/program.h"
#include "platform/windows/text.h"

namespace platform {

namespace windows {

namespace {

bool Is_Of_Kind(DWORD attributes, Entry_Kind kind) {
    if ((attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0) return false;
    const bool is_folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return is_folder == (kind == Entry_Kind::Folder);
}

}  // namespace

std::wstring Whole_Path(const std::wstring& path) {
    const DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring whole(size, L'\0');
    whole.resize(GetFullPathNameW(path.c_str(), size, whole.data(), nullptr));
    constexpr std::size_t Root_Size = 3;  // of a drive
    if (whole.size() > Root_Size && whole.ends_with(L'\\')) whole.pop_back();
    return whole;
}

std::wstring Long_Form(const std::wstring& whole) {
    if (whole.starts_with(LR"(\\.\)") || whole.starts_with(LR"(\\?\)")) return {};
    if (whole.starts_with(LR"(\\)")) return LR"(\\?\UNC)" + whole.substr(1);
    return LR"(\\?\)" + whole;
}

std::wstring Native_Path(std::string_view path) {
    if (path.find('\0') != std::string_view::npos) return {};
    const std::wstring wide = path.empty() ? L"." : To_Wide(path);
    const bool is_drive = wide.size() == 2 && wide[1] == L':';
    return Long_Form(Whole_Path(is_drive ? wide + L'\\' : wide));
}

bool Is_Folder(const std::wstring& whole) {
    const DWORD attributes = Attributes_Of(Long_Form(whole));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

DWORD Attributes_Of(const std::wstring& native) {
    const DWORD attributes = GetFileAttributesW(native.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return attributes;
    }
    const File_Handle file(CreateFileW(native.c_str(), 0, Share_All, nullptr, OPEN_EXISTING,
                                       FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    BY_HANDLE_FILE_INFORMATION target;
    if (!file.Is_Open() || !GetFileInformationByHandle(file.Get(), &target)) {
        return INVALID_FILE_ATTRIBUTES;
    }
    return target.dwFileAttributes;
}

std::optional<std::vector<std::wstring>> Names_In(const std::wstring& native, Entry_Kind kind) {
    if (native.empty()) return std::nullopt;
    std::vector<std::wstring> names;
    const std::wstring folder = native.ends_with(L'\\') ? native : native + L'\\';
    WIN32_FIND_DATAW entry;
    const HANDLE search =
        FindFirstFileExW((folder + L'*').c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch,
                         nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (search == INVALID_HANDLE_VALUE) {
        // The root of an empty drive has not even the entries for itself.
        return ::GetLastError() == ERROR_FILE_NOT_FOUND ? std::optional(names) : std::nullopt;
    }
    std::vector<std::pair<std::string, std::wstring>> keyed;
    do {
        const std::wstring name = entry.cFileName;
        DWORD attributes = entry.dwFileAttributes;
        if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
            attributes = Attributes_Of(folder + name);
            if (attributes == INVALID_FILE_ATTRIBUTES) continue;
        }
        if (name == L"." || name == L".." || !Is_Of_Kind(attributes, kind)) continue;
        keyed.emplace_back(Lower_Case(From_Wide_Lossy(name)), name);
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    std::sort(keyed.begin(), keyed.end());
    for (auto& [key, name] : keyed)
        names.push_back(std::move(name));
    return names;
}

}  // namespace windows

// The process never leaves the folder that it was started in, so this is the one at start-up too.
std::string Current_Folder() {
    return windows::From_Wide(windows::Whole_Path(L".")).value_or(std::string());
}

}  // namespace platform
