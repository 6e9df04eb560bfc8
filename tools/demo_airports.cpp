#include "tools/demo_airports.h"

#include <array>
#include <limits>

#include "platform/code_page.h"
#include "tools/fact_fields.h"

namespace world {

namespace {

constexpr int Highest_Count = std::numeric_limits<std::int16_t>::max();  // of points, of paths
constexpr int Highest_Parking_Number = 8191;
constexpr double Lowest_Elevation = -2000;  // feet
constexpr double Highest_Elevation = 30000;
constexpr double Largest_Radius = 1000;  // metres

bool Read_Airport(Fact_Fields& fields, std::vector<Airport_Facts>& airports) {
    const auto ident = Next_Word(fields);
    const auto position = Next_Position(fields);
    const auto elevation = Next_Number(fields, Lowest_Elevation, Highest_Elevation);
    const auto name = platform::From_Utf8(fields.rest);
    if (!ident || !position || !elevation || !name) return false;
    Airport_Facts& airport = airports.emplace_back();
    airport.ident = *ident;
    airport.position = *position;
    airport.elevation_ft = *elevation;
    airport.name = *name;
    return true;
}

std::optional<Com_Use> Use_Of(std::string_view word) {
    static constexpr std::pair<std::string_view, Com_Use> Uses[] = {
        {"atis", Com_Use::Atis},           {"unicom", Com_Use::Unicom},
        {"ground", Com_Use::Ground},       {"tower", Com_Use::Tower},
        {"clearance", Com_Use::Clearance}, {"approach", Com_Use::Approach},
        {"departure", Com_Use::Departure},
    };
    for (const auto& [name, use] : Uses) {
        if (word == name) return use;
    }
    return std::nullopt;
}

bool Read_Com(Fact_Fields& fields, Airport_Facts& airport) {
    const auto word = Next_Word(fields);
    const auto use = word ? Use_Of(*word) : std::nullopt;
    const auto frequency = Next_Frequency(fields);
    if (!use || !frequency) return false;
    airport.coms.push_back({*use, *frequency});
    return true;
}

bool Read_Runway(Fact_Fields& fields, Airport_Facts& airport) {
    const auto designator_1 = Next_Designator(fields);
    const auto designator_2 = Next_Designator(fields);
    const auto end_1 = Next_Position(fields);
    const auto end_2 = Next_Position(fields);
    const auto width = Next_Count(fields, Highest_Count);
    if (!designator_1 || !designator_2 || !end_1 || !end_2 || !width) return false;
    // Scenery files only tell end 1; readers work out the other one.
    if (Opposite(*designator_1) != *designator_2) return false;
    airport.runways.push_back(
        {designator_1->number, designator_1->letter, *end_1, *end_2, *width, {}});
    return true;
}

bool Read_Ils(Fact_Fields& fields, Airport_Facts& airport) {
    const auto end = Next_Designator(fields);
    const auto ident = Next_Word(fields);
    const auto transmitter = Next_Position(fields);
    const auto course = Next_Number(fields, 0, 360);
    const auto frequency = Next_Frequency(fields);
    if (!end || !ident || !transmitter || !course || !frequency) return false;
    for (Runway_Facts& runway : airport.runways) {
        const Designator end_1{runway.number, runway.letter};
        if (*end != end_1 && *end != Opposite(end_1)) continue;
        runway.ils.push_back({std::string(*ident), *transmitter, *course, *frequency});
        return true;
    }
    return false;
}

bool Read_Point(Fact_Fields& fields, Airport_Facts& airport) {
    const auto position = Next_Position(fields);
    if (!position || airport.points.size() >= Highest_Count) return false;
    airport.points.push_back(*position);
    return true;
}

bool Read_Parking(Fact_Fields& fields, Airport_Facts& airport) {
    const auto position = Next_Position(fields);
    const auto radius = Next_Number(fields, 0, Largest_Radius);
    const auto number = Next_Count(fields, Highest_Parking_Number);
    const auto label = Label_Code(fields.rest);
    if (!position || !radius || !number || !label) return false;
    if (airport.parkings.size() >= Highest_Count) return false;
    airport.parkings.push_back({*position, static_cast<float>(*radius), *number, *label});
    return true;
}

bool Read_Path(Fact_Fields& fields, Airport_Facts& airport) {
    const int last_point = static_cast<int>(airport.points.size()) - 1;
    const auto start = Next_Count(fields, last_point);
    const auto end = Next_Count(fields, last_point);
    const auto name = platform::From_Utf8(fields.rest);
    if (!start || !end || !name || name->size() > Taxiway_Name_Length) return false;
    if (airport.paths.size() >= Highest_Count) return false;
    airport.paths.push_back({Path_Kind::Taxiway, *start, *end, 0, *name});
    return true;
}

struct Fact_Kind {
    std::string_view verb;
    bool (*read)(Fact_Fields&, Airport_Facts&);
    std::string_view usage;
};

constexpr std::array Fact_Kinds{
    Fact_Kind{"com", Read_Com, "com USE MHZ"},
    Fact_Kind{"runway", Read_Runway, "runway END1 END2 LAT1 LON1 LAT2 LON2 WIDTH, opposite ends"},
    Fact_Kind{"ils", Read_Ils, "ils END IDENT LAT LON COURSE MHZ behind that runway"},
    Fact_Kind{"point", Read_Point, "point LAT LON"},
    Fact_Kind{"parking", Read_Parking, "parking LAT LON RADIUS NUMBER LABEL"},
    Fact_Kind{"path", Read_Path, "path POINT POINT [NAME] behind those points"},
};

std::string Read_Line(std::string_view line, std::vector<Airport_Facts>& airports) {
    Fact_Fields fields{line};
    const std::string_view verb = Next_Word(fields).value_or("");
    if (verb == "airport") {
        return Read_Airport(fields, airports) ? "" : "expected airport IDENT LAT LON FEET NAME";
    }
    for (const Fact_Kind& kind : Fact_Kinds) {
        if (verb != kind.verb) continue;
        if (airports.empty()) return "an airport has to come first";
        return kind.read(fields, airports.back()) ? "" : "expected " + std::string(kind.usage);
    }
    return "unknown fact \"" + std::string(verb) + "\"";
}

}  // namespace

std::string Parse_Airports(std::string_view text, std::vector<Airport_Facts>& airports) {
    for (int number = 1; !text.empty(); ++number) {
        std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (line.empty() || line.front() == '#') continue;
        const std::string fault = Read_Line(line, airports);
        if (!fault.empty()) return "line " + std::to_string(number) + ": " + fault;
    }
    for (Airport_Facts& airport : airports)
        Settle_Path_Kinds(airport);
    return "";
}

}  // namespace world
