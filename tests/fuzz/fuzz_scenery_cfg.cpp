// The list of scenery areas.

#include <algorithm>

#include "platform/code_page.h"
#include "platform/files.h"
#include "scenery/catalogue.h"
#include "tests/fuzz/fuzz.h"

using namespace skerrand;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    scenery_areas = Parse_Scenery_Cfg(text);
    for (const Scenery_Area& area : scenery_areas) {
        Check(!area.title.starts_with(' ') && !area.title.ends_with(' '));
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
