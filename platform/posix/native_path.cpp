#include "platform/posix/native_path.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <span>
#include <sys/stat.h>
#include <tuple>
#include <unordered_map>

#include "platform/code_page.h"
#include "platform/program.h"

namespace platform {

namespace posix {

namespace {

constexpr std::string_view separators = "/\\";

bool Is_Of_Kind(const dirent& entry, DIR* stream, Entry_Kind kind) {
    if (kind == Entry_Kind::Any) return true;
    if (entry.d_type == DT_REG) return kind == Entry_Kind::File;
    if (entry.d_type == DT_DIR) return kind == Entry_Kind::Folder;
    struct stat status {};
    if (fstatat(dirfd(stream), entry.d_name, &status, 0) != 0) return false;
    return kind == Entry_Kind::File ? S_ISREG(status.st_mode) : S_ISDIR(status.st_mode);
}

/// All entries of a folder as they were at one time.
struct Listing {
    struct stat folder {};
    std::time_t made = 0;
    std::vector<Entry> entries;
};

bool Is_Current(const Listing& listing, const struct stat& now) {
    // Two changes within one step of the file system's clock look like one: FAT's steps are two
    // seconds long.
    constexpr std::time_t coarsest_step = 2;
    const struct stat& then = listing.folder;
    return listing.made > now.st_mtim.tv_sec + coarsest_step && then.st_ino == now.st_ino &&
           then.st_mtim.tv_sec == now.st_mtim.tv_sec && then.st_mtim.tv_nsec == now.st_mtim.tv_nsec;
}

/// The native names in the folder that are `name` in any case, in the order of `Entries`. Listings
/// are kept while their folder stays unchanged, so that opening all files of a folder one after the
/// other does not list it for each.
std::vector<std::string> In_Any_Case(const std::string& native_folder, std::string_view name) {
    constexpr std::size_t most_listings = 64;
    static std::unordered_map<std::string, Listing> listings;
    struct stat status {};
    if (stat(native_folder.c_str(), &status) != 0) return {};
    if (listings.size() > most_listings) listings.clear();
    Listing& listing = listings[native_folder];
    if (!Is_Current(listing, status)) {
        auto entries = Entries(native_folder, Entry_Kind::Any).value_or(std::vector<Entry>());
        listing = {status, std::time(nullptr), std::move(entries)};
    }
    std::vector<std::string> names;
    const std::string lower = Lower_Case(name);
    for (auto entry = std::ranges::lower_bound(listing.entries, lower, {}, &Entry::lower);
         entry != listing.entries.end() && entry->lower == lower; ++entry) {
        // Not what merely looks like it because its characters have no place in the code page.
        if (To_Utf8(entry->name) == entry->native) names.push_back(entry->native);
    }
    return names;
}

/// The names of a path, with "." and ".." followed by the text alone, as on the native platform.
std::vector<std::string_view> Split(std::string_view path, bool from_root) {
    std::vector<std::string_view> names;
    while (!path.empty()) {
        const std::string_view name = path.substr(0, path.find_first_of(separators));
        path.remove_prefix(std::min(name.size() + 1, path.size()));
        if (name.empty() || name == ".") continue;
        const bool up = name == "..";
        if (up && !names.empty() && names.back() != "..") {
            names.pop_back();
        } else if (!up || !from_root) {
            names.push_back(name);
        }
    }
    return names;
}

std::string Joined(const std::string& folder, const std::string& name) {
    const bool bare = folder.empty() || folder.back() == '/';
    return bare ? folder + name : folder + "/" + name;
}

bool Stands(const std::string& native) {
    struct stat status {};
    return lstat(native.c_str(), &status) == 0;
}

/// A native path that stands and how many names it has followed.
struct Way {
    std::string native;
    std::size_t followed = 0;
};

/// Follows the names as far as there is a way, at each the exact one first; a way that ends early
/// is left for the next one.
Way Furthest(const Way& way, std::span<const std::string_view> names) {
    Way best = way;
    if (way.followed == names.size()) return best;
    const auto arrives = [&](const std::string& name) {
        Way on = Furthest({Joined(way.native, name), way.followed + 1}, names);
        if (on.followed > best.followed) best = std::move(on);
        return best.followed == names.size();
    };
    const std::string exact = To_Utf8(names[way.followed]);
    if (Stands(Joined(way.native, exact)) && arrives(exact)) return best;
    const std::string folder = way.native.empty() ? "." : way.native;
    for (const std::string& other : In_Any_Case(folder, names[way.followed])) {
        if (other != exact && arrives(other)) break;
    }
    return best;
}

/// The end of the path, a name that is not found as it was given. Where the folder of a file stands
/// just as its path has it, no other folder will do.
std::string Follow(std::string_view path, bool is_file) {
    if (path.find('\0') != std::string_view::npos) return {};
    const bool from_root = !path.empty() && separators.find(path.front()) != std::string_view::npos;
    const auto names = Split(path, from_root);
    const auto append = [](std::string native, std::span<const std::string_view> more) {
        for (const std::string_view name : more)
            native = Joined(native, To_Utf8(name));
        return native;
    };
    Way way{from_root ? "/" : "", 0};
    if (is_file && names.size() > 1) {
        const std::string folder = append(way.native, std::span(names).first(names.size() - 1));
        if (Stands(folder)) way = {folder, names.size() - 1};
    }
    way = Furthest(way, names);
    const std::string native = append(way.native, std::span(names).subspan(way.followed));
    return native.empty() ? "." : native;
}

}  // namespace

std::optional<std::vector<Entry>> Entries(const std::string& native_folder, Entry_Kind kind) {
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(native_folder.c_str()), &closedir);
    if (!stream) return std::nullopt;
    std::vector<Entry> entries;
    errno = 0;  // tells a fault from the end of the folder
    while (const dirent* entry = readdir(stream.get())) {
        const std::string_view native = entry->d_name;
        if (native != "." && native != ".." && Is_Of_Kind(*entry, stream.get(), kind)) {
            const std::string name = From_Utf8_Lossy(native);
            entries.push_back({Lower_Case(name), name, std::string(native)});
        }
        errno = 0;
    }
    if (errno != 0) return std::nullopt;
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return std::tie(a.lower, a.name, a.native) < std::tie(b.lower, b.name, b.native);
    });
    return entries;
}

std::string Native_Path(std::string_view path) {
    return Follow(path, false);
}

std::string Native_File(std::string_view path) {
    return Follow(path, true);
}

}  // namespace posix

// The process never leaves the folder that it was started in, so this is the one at start-up too.
std::string Current_Folder() {
    std::error_code error;
    return From_Utf8(std::filesystem::current_path(error).string()).value_or(std::string());
}

}  // namespace platform
