// The list of scenery areas.

#include <algorithm>

#include "platform/code_page.h"
#include "platform/files.h"
#include "scenery/blanks.h"
#include "scenery/catalogue.h"
#include "scenery/section_heads.h"
#include "tests/fuzz/fuzz.h"

using namespace skerrand;

namespace {

void Check_Places(std::string_view text) {
    std::vector<std::string_view> heads;
    for (std::size_t from = 0; from < text.size();) {
        const std::size_t end = std::min(text.find_first_of("\r\n", from), text.size());
        const std::string_view line = text.substr(from, end - from);
        if (Is_Section_Head(line)) heads.push_back(line);
        from = end + 1;
    }
    const std::vector<std::size_t> places = First_Places(text, heads);
    Check(places.size() == heads.size());
    for (std::size_t i = 0; i < heads.size(); ++i)
        Check(places[i] == text.find(heads[i]));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    Check_Places(text);
    scenery_areas = Parse_Scenery_Cfg(text);
    for (const Scenery_Area& area : scenery_areas) {
        Check(area.title == Trim_Blanks(area.title));
        Check(area.local.find('\n') == std::string::npos);
    }
    // Each resolving asks the file system some questions, so that many areas would take long.
    scenery_areas.resize(std::min<std::size_t>(scenery_areas.size(), 2));
    const std::string drives[] = {"x: ", "y: " + text.substr(0, 3)};
    Resolve_Local_Paths(drives);
    for (const Scenery_Area& area : scenery_areas) {
        Check(area.local == platform::Lower_Case(area.local));
        Check(area.local.empty() || platform::Folder_Exists(area.local));
    }
    return 0;
}
