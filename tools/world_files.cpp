#include "tools/world_files.h"

#include <algorithm>

#include "tools/world_areas.h"

namespace world {

namespace {

// apt0001.bgl, APT0002.BGL, ...: installed scenery mixes letter cases.
std::string File_Name(const char* lower, const char* upper, std::size_t number) {
    std::string digits = std::to_string(number);
    digits.insert(0, digits.size() < 4 ? 4 - digits.size() : 0, '0');
    return number % 2 == 0 ? upper + digits + ".BGL" : lower + digits + ".bgl";
}

std::vector<World_File> Airport_Files(const World& world) {
    std::vector<World_File> files;
    std::span<const Airport_Facts> rest = world.airports;
    while (!rest.empty()) {
        const std::size_t area = Area_Of(rest.front().position);
        const auto most = std::min(static_cast<std::size_t>(world.airports_of_file), rest.size());
        std::size_t count = 1;
        while (count < most && Area_Of(rest[count].position) == area)
            ++count;
        files.push_back({area, File_Name("apt", "APT", files.size() + 1), rest.first(count), {}});
        rest = rest.subspan(count);
    }
    return files;
}

/// One of `shares` consecutive parts of about equal size.
std::span<const Airspace_Facts> Share(std::span<const Airspace_Facts> all, std::size_t number,
                                      std::size_t shares) {
    const std::size_t first = all.size() * number / shares;
    return all.subspan(first, all.size() * (number + 1) / shares - first);
}

}  // namespace

void Order_By_Area(std::vector<Airport_Facts>& airports) {
    std::stable_sort(airports.begin(), airports.end(),
                     [](const Airport_Facts& one, const Airport_Facts& other) {
                         return Area_Of(one.position) < Area_Of(other.position);
                     });
}

std::vector<World_File> Plan_Files(const World& world) {
    std::vector<World_File> files = Airport_Files(world);
    const std::size_t airport_files = files.size();
    const auto shares = static_cast<std::size_t>(world.airspace_files);
    const std::size_t mixed = std::min(shares / 2, airport_files);
    const std::size_t alone = shares - mixed;
    for (std::size_t i = 0; i < shares; ++i) {
        const auto airspaces = Share(world.airspaces, i, shares);
        if (i < alone) {
            files.push_back({0, File_Name("bnd", "BND", i + 1), {}, airspaces});
        } else {
            files[(i - alone) * airport_files / mixed].airspaces = airspaces;
        }
    }
    return files;
}

}  // namespace world
