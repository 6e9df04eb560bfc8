#include "platform/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <new>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/code_page.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/native_path.h"

namespace platform {

namespace {

namespace fs = std::filesystem;
using posix::Descriptor;
using posix::Entry_Kind;
using posix::Native_File;
using posix::Native_Path;

/// Never waits, also where a pipe or a device stands under the name.
Descriptor Open_To_Read(std::string_view path) {
    return Descriptor(open(Native_File(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
}

/// Size of an open ordinary file; nothing for anything else.
std::optional<std::size_t> Size_Of(const Descriptor& file) {
    struct stat status {};
    if (file.Get() < 0 || fstat(file.Get(), &status) != 0) return std::nullopt;
    if (!S_ISREG(status.st_mode)) return std::nullopt;
    return static_cast<std::size_t>(status.st_size);
}

/// Reads until the part is full or the file ends. The bytes read; nothing on an error.
std::optional<std::size_t> Read_At(const Descriptor& file, std::size_t offset,
                                   std::span<std::uint8_t> part) {
    std::size_t done = 0;
    while (done < part.size()) {
        const ssize_t count = pread(file.Get(), part.data() + done, part.size() - done,
                                    static_cast<off_t>(offset + done));
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

bool Read_Whole(const Descriptor& file, Bytes& bytes, std::size_t spare) {
    const auto size = Size_Of(file);
    if (!size || *size > Largest_File) return false;
    try {
        // What the buffer held is overwritten, not cleared first: a buffer that serves one file
        // after the other is not filled with zeros ahead of each.
        bytes.resize(*size + spare);
    } catch (const std::bad_alloc&) {
        return false;
    }
    const auto done = Read_At(file, 0, std::span(bytes).first(*size));
    if (!done) return false;
    bytes.resize(*done + spare);  // shorter if the file has shrunk since it was opened
    std::fill(bytes.end() - static_cast<std::ptrdiff_t>(spare), bytes.end(), std::uint8_t{0});
    return true;
}

/// The file that a path leads to: behind a link, so that the file is replaced and the link stays.
fs::path File_To_Replace(std::string_view path) {
    std::error_code error;
    const fs::path native = fs::absolute(Native_File(path), error);
    const fs::path target = fs::canonical(native, error);
    return error ? native : target;
}

/// Whether `name` is `file`, a dot, the number of a process and ".tmp".
bool Is_Temporary(std::string_view name, const std::string& file) {
    if (!name.starts_with(file + ".")) return false;
    name.remove_prefix(file.size() + 1);
    const std::size_t number = name.find_first_not_of("0123456789");
    return number != 0 && number != std::string_view::npos && name.substr(number) == ".tmp";
}

/// A lock tells which of them are still being written, whoever bears the number now.
void Remove_Leftovers_Of(const fs::path& file) {
    const auto entries = posix::Entries(file.parent_path(), Entry_Kind::File);
    for (const auto& entry : entries.value_or(std::vector<posix::Entry>())) {
        if (!Is_Temporary(entry.native, file.filename())) continue;
        const fs::path temporary = file.parent_path() / entry.native;
        const Descriptor left(open(temporary.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW));
        if (flock(left.Get(), LOCK_EX | LOCK_NB) == 0) unlink(temporary.c_str());
    }
}

bool Write_All(int file, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(file, bytes.data(), bytes.size());
        if (count < 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

/// Writes the temporary file and gives it the file's name, holding its lock all the while.
bool Replace(const fs::path& file, const std::string& temporary,
             std::span<const std::uint8_t> bytes) {
    const Descriptor fresh(open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (fresh.Get() < 0) return false;
    // Where the file system has no locks or no rights of access, the file is written without.
    static_cast<void>(flock(fresh.Get(), LOCK_EX | LOCK_NB));
    struct stat old {};
    if (stat(file.c_str(), &old) == 0) static_cast<void>(fchmod(fresh.Get(), old.st_mode & 07777));
    return Write_All(fresh.Get(), bytes) && fsync(fresh.Get()) == 0 &&
           std::rename(temporary.c_str(), file.c_str()) == 0;
}

}  // namespace

bool File_Exists(std::string_view path) {
    std::error_code error;
    return fs::is_regular_file(Native_File(path), error);
}

bool Folder_Exists(std::string_view path) {
    std::error_code error;
    return fs::is_directory(Native_Path(path), error);
}

std::optional<std::vector<std::string>> File_Names(std::string_view folder,
                                                   std::string_view ending) {
    const auto entries = posix::Entries(Native_Path(folder), Entry_Kind::File);
    if (!entries) return std::nullopt;
    std::vector<std::string> names;
    for (const auto& entry : *entries) {
        if (entry.lower.ends_with(Lower_Case(ending))) names.push_back(entry.name);
    }
    return names;
}

std::vector<std::string> Subfolders(std::string_view folder) {
    std::vector<std::string> names;
    const auto entries = posix::Entries(Native_Path(folder), Entry_Kind::Folder);
    for (const auto& entry : entries.value_or(std::vector<posix::Entry>()))
        names.push_back(entry.native);
    return names;
}

bool Read_File(std::string_view path, Bytes& bytes, std::size_t spare) {
    const bool read = Read_Whole(Open_To_Read(path), bytes, spare);
    if (!read) bytes.clear();
    return read;
}

bool Read_File_Part(std::string_view path, std::size_t offset, std::span<std::uint8_t> part) {
    const Descriptor file = Open_To_Read(path);
    return Size_Of(file) && Read_At(file, offset, part) == part.size();
}

std::string Write_File(std::string_view path, std::span<const std::uint8_t> bytes) {
    const fs::path file = File_To_Replace(path);
    const std::string temporary = file.string() + "." + std::to_string(getpid()) + ".tmp";
    Remove_Leftovers_Of(file);
    if (!Replace(file, temporary, bytes)) {
        const int reason = errno;
        unlink(temporary.c_str());
        return std::strerror(reason);
    }
    // The new file stands, whatever comes of this: some file systems cannot sync a folder.
    const Descriptor folder(open(file.parent_path().c_str(), O_RDONLY | O_CLOEXEC));
    static_cast<void>(fsync(folder.Get()));
    return {};
}

void Remove_Leftovers(std::string_view path) {
    Remove_Leftovers_Of(File_To_Replace(path));
}

void Delete_File(std::string_view path) {
    unlink(Native_File(path).c_str());
}

}  // namespace platform
