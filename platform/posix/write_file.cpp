#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/native_path.h"

namespace platform {

namespace {

/// The file behind a link, so that the file is replaced and the link stays.
std::string Link_Target(const std::string& native) {
    const std::unique_ptr<char, decltype(&std::free)> target(realpath(native.c_str(), nullptr),
                                                             &std::free);
    return target ? std::string(target.get()) : native;
}

bool Write_All(int file, std::span<const std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(file, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return true;
}

/// Gives the new file the rights of the one that it replaces, where the file system keeps any.
void Copy_Mode(const std::string& from, int to) {
    struct stat old {};
    if (stat(from.c_str(), &old) == 0) static_cast<void>(fchmod(to, old.st_mode & 07777));
}

bool Fill(const std::string& temporary, const std::string& native,
          std::span<const std::uint8_t> bytes) {
    const posix::Descriptor file(
        open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (file.Get() < 0) return false;
    Copy_Mode(native, file.Get());
    return Write_All(file.Get(), bytes) && fsync(file.Get()) == 0;
}

}  // namespace

std::string Write_File(std::string_view path, std::span<const std::uint8_t> bytes) {
    const std::string native = Link_Target(posix::Native_Path(path));
    const std::string temporary = native + "." + std::to_string(getpid()) + ".tmp";
    unlink(temporary.c_str());  // left by a process of the same number that was killed
    if (Fill(temporary, native, bytes) && std::rename(temporary.c_str(), native.c_str()) == 0) {
        return {};
    }
    const int reason = errno;
    unlink(temporary.c_str());
    return std::strerror(reason);
}

}  // namespace platform
