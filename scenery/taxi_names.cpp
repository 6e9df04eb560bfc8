#include "scenery/taxi_names.h"

#include <cstddef>
#include <string_view>

namespace skerrand {

namespace {

/// The number below `end` that has this text as its decimal form, or `end` if there is none.
std::size_t Decimal_Number(std::string_view text, std::size_t end) {
    constexpr std::size_t Most_Digits = 10;  // of the 32-bit counts
    if (text.empty() || text.size() > Most_Digits || (text[0] == '0' && text.size() > 1))
        return end;
    std::size_t number = 0;
    for (const char digit : text) {
        if (digit < '0' || digit > '9') return end;
        number = number * 10 + static_cast<std::size_t>(digit - '0');
    }
    return number < end ? number : end;
}

/// For each name the number of the one that a path ends up with. A name is given again only under
/// a number above its own, so that from the last name to the first each chain is known already.
std::vector<std::size_t> Last_Names(const std::vector<std::string>& names) {
    std::vector<std::size_t> last(names.size());
    for (std::size_t i = names.size(); i-- > 0;) {
        const std::size_t next = Decimal_Number(names[i], names.size());
        last[i] = next > i && next < names.size() ? last[next] : i;
    }
    return last;
}

}  // namespace

void Name_Taxiways(const std::vector<std::string>& names, std::vector<Taxi_Path>& paths) {
    const std::vector<std::size_t> last = Last_Names(names);
    for (Taxi_Path& path : paths) {
        if (path.kind != Path_Taxiway) continue;
        const std::size_t number = Decimal_Number(path.name, names.size());
        if (number < names.size()) path.name = names[last[number]];
    }
}

void Name_Runway_Paths(const std::vector<Runway_Info>& runways, std::vector<Taxi_Path>& paths) {
    if (runways.empty()) return;
    for (Taxi_Path& path : paths) {
        if (path.kind != Path_Runway) continue;
        const std::size_t number = Decimal_Number(path.name, runways.size() + 1);
        if (number > runways.size()) continue;
        path.name = "Runway ";
        if (number < runways.size()) path.name += runways[number].id_1;
    }
}

}  // namespace skerrand
