#include "scenery/catalogue.h"

#include <algorithm>
#include <array>

#include "platform/code_page.h"
#include "platform/files.h"
#include "scenery/blanks.h"
#include "scenery/section_heads.h"

namespace skerrand {

std::vector<Scenery_Area> scenery_areas;

namespace {

constexpr std::string_view Line_End = "\r\n";

struct Area_Key {
    std::string_view key;
    std::string Scenery_Area::*field;
};

constexpr std::array<Area_Key, 7> Area_Keys = {{
    {"title", &Scenery_Area::title},
    {"texture_id", &Scenery_Area::texture_id},
    {"active", &Scenery_Area::active},
    {"layer", &Scenery_Area::layer},
    {"required", &Scenery_Area::required},
    {"remote", &Scenery_Area::remote},
    {"local", &Scenery_Area::local},
}};

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
Section_Text Cut_Section(Section_Text whole, std::size_t first, std::size_t next) {
    const std::size_t length = next > first ? next - first : first - next + 2;
    return {whole.text.substr(first, length), whole.lower.substr(first, length)};
}

Scenery_Area Read_Area(Section_Text section) {
    Scenery_Area area;
    for (const Area_Key& entry : Area_Keys)
        area.*entry.field = Get_Key(section, entry.key);
    return area;
}

}  // namespace

std::string Get_Key(Section_Text section, std::string_view key) {
    const std::string searched = std::string(key) + "=";
    const std::size_t found = section.lower.find(searched);
    if (found == std::string_view::npos) return {};
    const std::size_t start = found + searched.size();
    const std::size_t end = std::min(section.text.find(Line_End, start), section.text.size());
    return std::string(Trim_Blanks(section.text.substr(start, end - start)));
}

std::vector<Scenery_Area> Parse_Scenery_Cfg(std::string_view file) {
    const std::string text = Join_Lines(file);
    const std::string lower = platform::Lower_Case(text);
    const std::vector<std::string_view> heads = Section_Heads(text);
    const std::vector<std::size_t> places = First_Places(text, heads);
    std::vector<Scenery_Area> areas;
    for (std::size_t i = 0; i < heads.size() && areas.size() < Most_Areas; ++i) {
        if (platform::Lower_Case(heads[i]).find("[area.") == std::string::npos) continue;
        const std::size_t next = i + 1 < heads.size() ? places[i + 1] : text.size();
        areas.push_back(Read_Area(Cut_Section({text, lower}, places[i], next)));
    }
    return areas;
}

bool Read_Scenery_Cfg(std::string_view path) {
    platform::Bytes bytes;
    const bool read = platform::Read_File(path, bytes);
    scenery_areas = Parse_Scenery_Cfg(std::string(bytes.begin(), bytes.end()));
    return read;
}

}  // namespace skerrand
