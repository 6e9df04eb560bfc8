#include "platform/code_page.h"
#include "platform/posix/listing.h"
#include "platform/posix/native_path.h"
#include "platform/windows/paths.h"
#include "platform/windows/text.h"

// Until the folder listing has a neutral header.
namespace platform::posix {

std::string Native_Path(std::string_view path) {
    return std::string(path);
}

std::vector<std::string> Names_In(const std::string& folder, Entry_Kind kind) {
    std::vector<std::wstring> natives;
    windows::List_Folder(
        windows::Native_Path(folder),
        kind == Entry_Kind::File ? windows::Entry_Kind::File : windows::Entry_Kind::Folder,
        natives);
    std::vector<std::string> names;
    for (const std::wstring& native : natives)
        names.push_back(windows::From_Wide_Lossy(native));
    return names;
}

}  // namespace platform::posix
