#include "platform/desktop/pdf_file.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/posix/descriptor.h"

namespace platform::desktop {

namespace {

constexpr int Most_Of_One_Title = 9999;

/// Characters that no folder can hold, on this system or on a disk shared with another.
constexpr std::string_view Unfit = "/\\:*?\"<>|";

std::string Base_Name(std::string_view title) {
    std::string name(title);
    for (char& character : name) {
        if (Unfit.find(character) != std::string_view::npos) character = '_';
    }
    // A file whose name begins with a dot is hidden.
    if (name.empty() || name.front() == '.') name.insert(0, "_");
    return name;
}

/// Takes a name with an empty file, if nothing stands there; else `errno` tells why not.
bool Claim(const std::string& native) {
    return posix::Descriptor(open(native.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666))
               .Get() >= 0;
}

/// Gives a finished file the first free name.
std::optional<std::string> Rename_To_Free(const std::string& temporary, const std::string& base) {
    for (int number = 1; number <= Most_Of_One_Title; ++number) {
        const std::string count = number > 1 ? " (" + std::to_string(number) + ")" : "";
        const std::string name = base + count + ".pdf";
        const std::string native = To_Utf8(name);
        if (Claim(native)) {
            if (std::rename(To_Utf8(temporary).c_str(), native.c_str()) == 0) return name;
            unlink(native.c_str());
            return std::nullopt;
        }
        if (errno != EEXIST) return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::string> Save_Pdf(std::string_view title, std::span<const std::uint8_t> pdf) {
    const std::string base = Base_Name(title);
    const std::string temporary = base + "." + std::to_string(getpid()) + ".part";
    if (!Write_File(temporary, pdf).empty()) return std::nullopt;
    const auto name = Rename_To_Free(temporary, base);
    if (!name) Delete_File(temporary);
    return name;
}

}  // namespace platform::desktop
