#include <algorithm>

#include "app/settings.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "scenery/blanks.h"
#include "scenery/catalogue.h"

namespace skerrand {

namespace {

constexpr std::size_t Drive_Length = 2;  ///< a letter and a colon
constexpr std::size_t Label_Start = 3;

std::string Replace_All(std::string_view text, std::string_view old, std::string_view replacement) {
    std::string result;
    std::size_t from = 0;
    for (std::size_t at; (at = text.find(old, from)) != std::string_view::npos;) {
        result.append(text.substr(from, at - from)).append(replacement);
        from = at + old.size();
    }
    return result.append(text.substr(from));
}

/// A value names either the folder of the BGL files or the one that holds it.
std::string With_Scenery_Folder(std::string_view value) {
    std::string local(Trim_Blanks(value));
    std::replace(local.begin(), local.end(), '/', '\\');
    const std::string lower = platform::Lower_Case(local);
    if (!lower.ends_with("\\scenery") && lower != "scenery") local += "\\scenery";
    return local;
}

std::string On_Mapped_Drive(std::string local, std::string_view entry) {
    const std::string lower = platform::Lower_Case(local);
    const std::string label =
        platform::Lower_Case(entry.substr(std::min(Label_Start, entry.size())));
    if (label.empty()) return lower;
    if (lower.find(label) == std::string::npos) return local;
    return Replace_All(lower, label, entry.substr(0, Drive_Length));
}

std::string Resolve(const std::string& value, std::span<const std::string> drive_entries) {
    std::string local = With_Scenery_Folder(value);
    for (const std::string& entry : drive_entries)
        local = On_Mapped_Drive(local, entry);
    if (!platform::Folder_Exists(local)) local = fs_root + "\\" + local;
    local = platform::Lower_Case(local);
    return platform::Folder_Exists(local) ? local : std::string();
}

}  // namespace

void Resolve_Local_Paths(std::span<const std::string> drive_entries) {
    for (Scenery_Area& area : scenery_areas) {
        if (!area.local.empty()) area.local = Resolve(area.local, drive_entries);
    }
}

}  // namespace skerrand
