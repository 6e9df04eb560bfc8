#include "platform/posix/native_path.h"

#include <sys/stat.h>
#include <vector>

#include "platform/code_page.h"
#include "platform/posix/listing.h"

namespace platform::posix {

namespace {

constexpr std::string_view separators = "/\\";

bool Stands(const std::string& native) {
    struct stat status {};
    return lstat(native.c_str(), &status) == 0;
}

std::vector<std::string_view> Split(std::string_view path) {
    std::vector<std::string_view> names;
    while (!path.empty()) {
        const std::string_view name = path.substr(0, path.find_first_of(separators));
        if (!name.empty()) names.push_back(name);
        path.remove_prefix(name.size());
        if (!path.empty()) path.remove_prefix(1);
    }
    return names;
}

std::string Joined(const std::string& folder, const std::string& name) {
    const bool bare = folder.empty() || folder.back() == '/';
    return bare ? folder + name : folder + "/" + name;
}

}  // namespace

std::string Native_Path(std::string_view path) {
    if (path.empty()) return ".";
    if (path.find('\0') != std::string_view::npos) return {};
    const std::string root = separators.find(path.front()) == std::string_view::npos ? "" : "/";
    const auto names = Split(path);

    std::string exact = root;
    for (const std::string_view name : names)
        exact = Joined(exact, To_Utf8(name));
    if (Stands(exact)) return exact;

    std::string native = root;
    bool found = true;
    for (const std::string_view name : names) {
        std::string next = Joined(native, To_Utf8(name));
        if (found && !Stands(next)) {
            const std::string other = Find_In_Any_Case(native.empty() ? "." : native, name);
            found = !other.empty();
            if (found) next = Joined(native, other);
        }
        native = next;
    }
    return native;
}

}  // namespace platform::posix
