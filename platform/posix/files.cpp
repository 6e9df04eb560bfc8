#include "platform/files.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <new>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/code_page.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/listing.h"
#include "platform/posix/native_path.h"

namespace platform {

namespace {

using posix::Descriptor;
using posix::Native_Path;

std::optional<struct stat> Status_Of(std::string_view path) {
    struct stat status {};
    if (stat(Native_Path(path).c_str(), &status) != 0) return std::nullopt;
    return status;
}

/// Never waits, also where a pipe or a device stands under the name.
Descriptor Open_To_Read(std::string_view path) {
    return Descriptor(open(Native_Path(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
}

/// Size of an open ordinary file; nothing for anything else and for what no address can reach.
std::optional<std::size_t> Size_Of(const Descriptor& file) {
    struct stat status {};
    if (file.Get() < 0 || fstat(file.Get(), &status) != 0) return std::nullopt;
    if (!S_ISREG(status.st_mode) || status.st_size < 0) return std::nullopt;
    if (static_cast<std::uint64_t>(status.st_size) > Largest_File) return std::nullopt;
    return static_cast<std::size_t>(status.st_size);
}

/// Reads until the part is full or the file ends. The bytes read; nothing on an error.
std::optional<std::size_t> Read_At(const Descriptor& file, std::size_t offset,
                                   std::span<std::uint8_t> part) {
    std::size_t done = 0;
    while (done < part.size()) {
        const ssize_t count = pread(file.Get(), part.data() + done, part.size() - done,
                                    static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

bool Try_Resize(Bytes& bytes, std::size_t size) {
    try {
        if (bytes.capacity() < size) bytes.clear();  // nothing to carry over to the new place
        bytes.resize(size);
        return true;
    } catch (const std::exception&) {  // too long for the memory or for a vector
        return false;
    }
}

}  // namespace

bool File_Exists(std::string_view path) {
    const auto status = Status_Of(path);
    return status && S_ISREG(status->st_mode);
}

bool Folder_Exists(std::string_view path) {
    const auto status = Status_Of(path);
    return status && S_ISDIR(status->st_mode);
}

std::optional<std::vector<std::string>> File_Names(std::string_view folder,
                                                   std::string_view ending) {
    auto names = posix::Names_In(Native_Path(folder), posix::Entry_Kind::File);
    if (!names) return std::nullopt;
    const std::string lower_ending = Lower_Case(ending);
    std::erase_if(*names, [&lower_ending](const std::string& name) {
        return !Lower_Case(name).ends_with(lower_ending);
    });
    return names;
}

bool Read_File(std::string_view path, Bytes& bytes, std::size_t spare) {
    const Descriptor file = Open_To_Read(path);
    const auto size = Size_Of(file);
    // What the buffer held is overwritten, not cleared first: a buffer that serves one file after
    // the other is not filled with zeros ahead of each.
    if (!size || spare > Largest_File || !Try_Resize(bytes, *size + spare)) {
        bytes.clear();
        return false;
    }
    const auto done = Read_At(file, 0, std::span(bytes).first(*size));
    if (!done) {
        bytes.clear();
        return false;
    }
    bytes.resize(*done + spare);  // shorter if the file has shrunk since it was opened
    std::fill(bytes.end() - static_cast<std::ptrdiff_t>(spare), bytes.end(), std::uint8_t{0});
    return true;
}

bool Read_File_Part(std::string_view path, std::size_t offset, std::span<std::uint8_t> part) {
    const Descriptor file = Open_To_Read(path);
    const auto size = Size_Of(file);
    if (!size || offset > *size || part.size() > *size - offset) return false;
    return Read_At(file, offset, part) == part.size();
}

void Delete_File(std::string_view path) {
    unlink(Native_Path(path).c_str());
}

}  // namespace platform
