#include "platform/desktop/pdf_file.h"

#include "platform/files.h"

namespace platform::desktop {

namespace {

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

}  // namespace

std::optional<std::string> Save_Pdf(std::string_view title, std::span<const std::uint8_t> pdf) {
    for (int number = 1;; ++number) {
        const std::string count = number > 1 ? " (" + std::to_string(number) + ")" : "";
        std::string name = Base_Name(title) + count + ".pdf";
        if (File_Exists(name) || Folder_Exists(name)) continue;
        if (!Write_File(name, pdf).empty()) return std::nullopt;
        return name;
    }
}

}  // namespace platform::desktop
