#include "tools/world_areas.h"

namespace world {

namespace {

// Letter cases differ between list and disk, as they do in an installed simulator.
constexpr Area All_Areas[] = {
    {"Base Scenery", "Scenery", "Scenery", ""},
    {"North America West", R"(Scenery\NAmW)", "Scenery/NAMW/Scenery", ""},
    {"North America East", R"(scenery\name)", "Scenery/NAmE/scenery", ""},
    {"South America", R"(Scenery\SAme)", "Scenery/Same/Scenery", ""},
    {"Europe", R"(SCENERY\EURW\SCENERY)", "Scenery/EurW/Scenery", ""},
    {"Africa", R"(Scenery\Afri)", "Scenery/AFRI/SCENERY", ""},
    {"Asia", "Scenery/Asia", "Scenery/Asia/Scenery", ""},
    {"Pacific", R"(Scenery\Ocea)", "Scenery/Ocea/Scenery", ""},
    {"Scenery on Another Machine", "", "", R"(\\elsewhere\scenery)"},
    {"Addon Scenery", "Addon Scenery", "Addon Scenery/Scenery", ""},
};

// Boxes of places by area; the first that holds a place wins, and the last holds them all.
struct Box {
    std::size_t area;
    double south, north, west, east;
};

constexpr Box Boxes[] = {
    {7, -90, 30, -180, -140}, {1, 12, 90, -180, -100}, {2, 12, 90, -100, -30},
    {3, -90, 12, -140, -30},  {4, 35, 90, -30, 60},    {5, -90, 35, -30, 52},
    {6, 0, 90, 52, 180},      {7, -90, 90, -180, 180},
};

std::string Key(const char* key, const std::string& value) {
    return std::string(key) + "=" + value + "\r\n";
}

std::string Three_Digits(std::size_t number) {
    std::string digits = std::to_string(number);
    return std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

std::string Section(std::size_t number, const Area& area) {
    const std::string layer = std::to_string(number);
    return "\r\n[Area." + Three_Digits(number) + "]\r\n" + Key("Title", area.title) +
           Key("Texture_ID", layer) + Key("Local", area.local) + Key("Remote", area.remote) +
           Key("Active", "TRUE") + Key("Required", number == 1 ? "TRUE" : "FALSE") +
           Key("Layer", layer);
}

}  // namespace

std::span<const Area> Areas() {
    return All_Areas;
}

std::size_t Area_Of(Position position) {
    for (const Box& box : Boxes) {
        if (position.lat >= box.south && position.lat <= box.north && position.lon >= box.west &&
            position.lon <= box.east) {
            return box.area;
        }
    }
    return Boxes[0].area;
}

std::string Scenery_Cfg() {
    std::string text = "[General]\r\n" + Key("Title", "FS2002 World Scenery") +
                       Key("Description", "A world of airports to try charts with") +
                       Key("Clean_on_Exit", "TRUE");
    std::size_t number = 0;
    for (const Area& area : All_Areas)
        text += Section(++number, area);
    return text;
}

}  // namespace world
