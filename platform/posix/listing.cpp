#include "platform/posix/listing.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>
#include <unordered_map>
#include <utility>

#include "platform/code_page.h"

namespace platform::posix {

namespace {

/// Calls `visit(entry)` for each name in the folder; false if it cannot be read to its end.
template <typename Visit>
bool For_Each_Entry(const std::string& native_folder, Visit visit) {
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(native_folder.c_str()), &closedir);
    if (!stream) return false;
    errno = 0;  // tells a fault from the end of the folder
    while (const dirent* entry = readdir(stream.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") visit(*entry, stream.get());
        errno = 0;
    }
    return errno == 0;
}

bool Is_Of_Kind(const dirent& entry, DIR* stream, Entry_Kind kind) {
    if (entry.d_type == DT_REG) return kind == Entry_Kind::File;
    if (entry.d_type == DT_DIR) return kind == Entry_Kind::Folder;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return false;
    struct stat status {};
    if (fstatat(dirfd(stream), entry.d_name, &status, 0) != 0) return false;
    return kind == Entry_Kind::File ? S_ISREG(status.st_mode) : S_ISDIR(status.st_mode);
}

/// The native names of a folder by their lower-case Windows-1252 text.
struct Listing {
    struct stat folder {};  ///< as it was when the listing was made
    bool settled = false;   ///< a later change will show in the folder's time of change
    std::unordered_map<std::string, std::string> names;
};

bool Is_Current(const Listing& listing, const struct stat& now) {
    const struct stat& then = listing.folder;
    return then.st_dev == now.st_dev && then.st_ino == now.st_ino &&
           then.st_mtim.tv_sec == now.st_mtim.tv_sec && then.st_mtim.tv_nsec == now.st_mtim.tv_nsec;
}

Listing Make_Listing(const std::string& native_folder, const struct stat& status) {
    // Two changes within one step of the file system's clock look like one: FAT's steps are two
    // seconds long, so what is missing in a folder changed more recently is looked for anew.
    constexpr std::time_t coarsest_step = 2;
    Listing listing;
    listing.folder = status;
    listing.settled = std::time(nullptr) - status.st_mtim.tv_sec > coarsest_step;
    For_Each_Entry(native_folder, [&listing](const dirent& entry, DIR*) {
        const auto name = From_Utf8(entry.d_name);
        if (!name) return;
        std::string& first = listing.names[Lower_Case(*name)];
        // Byte order of UTF-8 and of Windows-1252 may differ, so compare in the latter.
        if (first.empty() || *name < *From_Utf8(first)) first = entry.d_name;
    });
    return listing;
}

constexpr std::size_t most_listings = 64;
std::unordered_map<std::string, Listing> listings;

}  // namespace

std::optional<std::vector<std::string>> Names_In(const std::string& native_folder,
                                                 Entry_Kind kind) {
    std::vector<std::pair<std::string, std::string>> keyed;
    const bool read =
        For_Each_Entry(native_folder, [&keyed, kind](const dirent& entry, DIR* stream) {
            if (!Is_Of_Kind(entry, stream, kind)) return;
            std::string name = From_Utf8_Lossy(entry.d_name);
            std::string lower = Lower_Case(name);
            keyed.emplace_back(std::move(lower), std::move(name));
        });
    if (!read) return std::nullopt;
    std::sort(keyed.begin(), keyed.end());
    std::vector<std::string> names;
    names.reserve(keyed.size());
    for (auto& [lower, name] : keyed)
        names.push_back(std::move(name));
    return names;
}

std::string Find_In_Any_Case(const std::string& native_folder, std::string_view name) {
    struct stat status {};
    if (stat(native_folder.c_str(), &status) != 0) return {};
    const std::string lower = Lower_Case(name);
    const auto kept = listings.find(native_folder);
    if (kept != listings.end() && Is_Current(kept->second, status)) {
        const auto entry = kept->second.names.find(lower);
        if (entry != kept->second.names.end()) return entry->second;
        if (kept->second.settled) return {};
    }
    if (listings.size() >= most_listings) listings.clear();
    Listing& fresh = listings[native_folder] = Make_Listing(native_folder, status);
    const auto entry = fresh.names.find(lower);
    return entry == fresh.names.end() ? std::string() : entry->second;
}

}  // namespace platform::posix
