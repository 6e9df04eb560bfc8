#include "scenery/catalogue.h"

#include <algorithm>
#include <array>

#include "app/settings.h"
#include "platform/code_page.h"
#include "platform/files.h"

namespace skerrand {

std::vector<Scenery_Area> scenery_areas;

namespace {

constexpr std::string_view Line_End = "\r\n";

struct Area_Key {
    std::string_view key;
    std::string Scenery_Area::*field;
};

constexpr std::array<Area_Key, 7> Area_Keys = {{
    {"title=", &Scenery_Area::title},
    {"texture_id=", &Scenery_Area::texture_id},
    {"active=", &Scenery_Area::active},
    {"layer=", &Scenery_Area::layer},
    {"required=", &Scenery_Area::required},
    {"remote=", &Scenery_Area::remote},
    {"local=", &Scenery_Area::local},
}};

constexpr std::size_t Drive_Length = 2;  ///< a letter and a colon
constexpr std::size_t Label_Start = 3;

/// Tabs are no blanks.
std::string_view Trim_Blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The lines of the file that are not empty, each with CR LF behind it.
std::string Join_Lines(std::string_view file) {
    std::string joined;
    joined.reserve(file.size() + file.size() / 16);
    while (!file.empty()) {
        const std::size_t end = std::min(file.find_first_of(Line_End), file.size());
        if (end > 0) joined.append(file.substr(0, end)).append(Line_End);
        file.remove_prefix(std::min(end + 1, file.size()));
    }
    return joined;
}

/// A line heads a section if, once the blanks round it are gone, its first "[" is its first
/// character and its first "]" its last.
bool Is_Section_Head(std::string_view line) {
    const std::string_view core = Trim_Blanks(line);
    return !core.empty() && core.front() == '[' && core.find(']') == core.size() - 1;
}

std::vector<std::string_view> Section_Heads(std::string_view joined) {
    std::vector<std::string_view> heads;
    while (!joined.empty()) {
        const std::size_t end = joined.find(Line_End);
        if (Is_Section_Head(joined.substr(0, end))) heads.push_back(joined.substr(0, end));
        joined.remove_prefix(end + Line_End.size());
    }
    return heads;
}

/// The section from `first` to just before `next`. With a head that stands twice `next` can lie
/// ahead of `first`; the length is then the distance backwards, but the text still runs onwards.
std::string_view Cut_Section(std::string_view text, std::size_t first, std::size_t next) {
    return text.substr(first, next > first ? next - first : first - next + 2);
}

Scenery_Area Read_Area(std::string_view section) {
    const std::string lower = platform::Lower_Case(section);
    Scenery_Area area;
    for (const Area_Key& entry : Area_Keys) {
        const std::size_t found = lower.find(entry.key);
        if (found == std::string::npos) continue;
        const std::string_view value = section.substr(found + entry.key.size());
        area.*entry.field = Trim_Blanks(value.substr(0, value.find(Line_End)));
    }
    return area;
}

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

std::string On_Mapped_Drive(std::string_view local, std::string_view entry) {
    const std::string label =
        platform::Lower_Case(entry.substr(std::min(Label_Start, entry.size())));
    if (label.empty()) return std::string(local);
    return Replace_All(platform::Lower_Case(local), label, entry.substr(0, Drive_Length));
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

std::vector<Scenery_Area> Parse_Scenery_Cfg(std::string_view file) {
    const std::string text = Join_Lines(file);
    const std::vector<std::string_view> heads = Section_Heads(text);
    std::vector<Scenery_Area> areas;
    for (std::size_t i = 0; i < heads.size() && areas.size() < Most_Areas; ++i) {
        if (platform::Lower_Case(heads[i]).find("[area.") == std::string::npos) continue;
        const std::size_t next = i + 1 < heads.size() ? text.find(heads[i + 1]) : text.size();
        areas.push_back(Read_Area(Cut_Section(text, text.find(heads[i]), next)));
    }
    return areas;
}

bool Read_Scenery_Cfg(std::string_view path) {
    platform::Bytes bytes;
    const bool read = platform::Read_File(path, bytes);
    scenery_areas = Parse_Scenery_Cfg(std::string(bytes.begin(), bytes.end()));
    return read;
}

void Resolve_Local_Paths(std::span<const std::string> drive_entries) {
    for (Scenery_Area& area : scenery_areas) {
        if (!area.local.empty()) area.local = Resolve(area.local, drive_entries);
    }
}

}  // namespace skerrand
