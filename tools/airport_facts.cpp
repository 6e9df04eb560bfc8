#include "tools/airport_facts.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace world {

namespace {

constexpr int Highest_Count = std::numeric_limits<std::int16_t>::max();  // of points, of paths
constexpr int Highest_Parking_Number = 8191;
constexpr double Runway_Reach = 5;  // metres to either side of the centre line
constexpr double Parking_Reach = 1;

/// The fields of one line, parted by single blanks. Each operation takes the next one away from the
/// front of `rest`; one that is missing or malformed makes the whole line bad.
struct Fields {
    std::string_view rest;
    bool is_bad = false;
};

std::string_view Next_Word(Fields& fields) {
    const std::string_view word = fields.rest.substr(0, fields.rest.find(' '));
    fields.rest.remove_prefix(std::min(word.size() + 1, fields.rest.size()));
    fields.is_bad = fields.is_bad || word.empty();
    return word;
}

template <typename Number>
Number Number_Of(std::string_view word, Number lowest, Number highest, Fields& fields) {
    Number number{};
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    const bool is_good =
        error == std::errc() && stop == end && number >= lowest && number <= highest;
    fields.is_bad = fields.is_bad || !is_good;
    return is_good ? number : lowest;
}

template <typename Number>
Number Next(Fields& fields, Number lowest, Number highest) {
    return Number_Of(Next_Word(fields), lowest, highest, fields);
}

Position Next_Position(Fields& fields) {
    const auto lat = Next(fields, -90.0, 90.0);
    return {lat, Next(fields, -180.0, 180.0)};
}

Frequency Next_Frequency(Fields& fields) {
    return static_cast<Frequency>(std::lround(Next(fields, 0.0, 9999.9999) * 10000));
}

/// A runway's end such as 9, 09 or 34C.
struct Designator {
    int number = 36;
    int letter = 0;

    friend bool operator==(const Designator&, const Designator&) = default;
};

Designator Next_Designator(Fields& fields) {
    std::string_view word = Next_Word(fields);
    const std::size_t letter = word.empty() ? word.npos : Runway_Letters.find(word.back());
    const bool has_letter = letter != word.npos;
    if (has_letter) word.remove_suffix(1);
    return {Number_Of(word, 1, 36, fields), has_letter ? static_cast<int>(letter) : 0};
}

Designator Opposite(Designator end) {
    const bool is_side = end.letter == 1 || end.letter == 2;
    return {end.number > 18 ? end.number - 18 : end.number + 18,
            is_side ? 3 - end.letter : end.letter};
}

void Read_Airport(Fields& fields, Airport_Facts& airport) {
    airport.ident = Next_Word(fields);
    airport.position = Next_Position(fields);
    airport.elevation_ft = Next(fields, -2000.0, 30000.0);
    airport.name = fields.rest;
}

void Read_Com(Fields& fields, Airport_Facts& airport) {
    static constexpr std::string_view Uses[] = {
        "", "atis", "", "unicom", "", "ground", "tower", "clearance", "approach", "departure"};
    const auto* const use = std::ranges::find(Uses, Next_Word(fields));
    fields.is_bad = fields.is_bad || use == std::end(Uses);
    airport.coms.push_back({static_cast<int>(use - Uses), Next_Frequency(fields)});
}

void Read_Runway(Fields& fields, Airport_Facts& airport) {
    const Designator designator = Next_Designator(fields);
    // Scenery files only tell end 1; readers work out the other one.
    if (Next_Designator(fields) != Opposite(designator)) fields.is_bad = true;
    const Position end_1 = Next_Position(fields);
    const Position end_2 = Next_Position(fields);
    airport.runways.push_back(
        {designator.number, designator.letter, end_1, end_2, Next(fields, 0, Highest_Count)});
}

void Read_Ils(Fields& fields, Airport_Facts& airport) {
    const Designator end = Next_Designator(fields);
    const auto runway = std::ranges::find_if(airport.runways, [end](const Runway_Facts& one) {
        const Designator end_1{one.number, one.letter};
        return end == end_1 || end == Opposite(end_1);
    });
    Ils_Facts ils;
    ils.ident = Next_Word(fields);
    ils.transmitter = Next_Position(fields);
    ils.course = Next(fields, 0.0, 360.0);
    ils.frequency = Next_Frequency(fields);
    if (runway == airport.runways.end()) {
        fields.is_bad = true;
    } else {
        runway->ils.push_back(std::move(ils));
    }
}

void Read_Point(Fields& fields, Airport_Facts& airport) {
    airport.points.push_back(Next_Position(fields));
    if (airport.points.size() > Highest_Count) fields.is_bad = true;
}

void Read_Parking(Fields& fields, Airport_Facts& airport) {
    // In the order of their codes, from 1 on; behind them come GATE A to GATE Z.
    static constexpr std::string_view Labels[] = {
        "PARKING",    "N PARKING", "NE PARKING", "E PARKING", "SE PARKING", "S PARKING",
        "SW PARKING", "W PARKING", "NW PARKING", "GATE",      "DOCK",
    };
    Parking_Facts parking;
    parking.position = Next_Position(fields);
    parking.radius_m = static_cast<float>(Next(fields, 0.0, 1000.0));
    parking.number = Next(fields, 0, Highest_Parking_Number);
    const std::string_view label = fields.rest;
    const auto* const plain = std::ranges::find(Labels, label);
    const bool is_letter = label.size() == 6 && label.starts_with("GATE ") && label.back() >= 'A' &&
                           label.back() <= 'Z';
    parking.label = static_cast<int>(plain - Labels) + 1 + (is_letter ? label.back() - 'A' : 0);
    if (plain == std::end(Labels) && !is_letter) fields.is_bad = true;
    airport.parkings.push_back(parking);
    if (airport.parkings.size() > Highest_Count) fields.is_bad = true;
}

void Read_Path(Fields& fields, Airport_Facts& airport) {
    const int last_point = static_cast<int>(airport.points.size()) - 1;
    const int start = Next(fields, 0, last_point);
    const int end = Next(fields, 0, last_point);
    airport.paths.push_back({Path_Kind::Taxiway, start, end, 0, std::string(fields.rest)});
    if (fields.rest.size() > Taxiway_Name_Length || airport.paths.size() > Highest_Count) {
        fields.is_bad = true;
    }
}

struct Fact_Kind {
    std::string_view verb;
    void (*read)(Fields&, Airport_Facts&);
    std::string_view usage;
};

constexpr Fact_Kind Fact_Kinds[] = {
    {"airport", Read_Airport, "airport IDENT LAT LON FEET NAME"},
    {"com", Read_Com, "com USE MHZ"},
    {"runway", Read_Runway, "runway END1 END2 LAT1 LON1 LAT2 LON2 WIDTH, opposite ends"},
    {"ils", Read_Ils, "ils END IDENT LAT LON COURSE MHZ behind that runway"},
    {"point", Read_Point, "point LAT LON"},
    {"parking", Read_Parking, "parking LAT LON RADIUS NUMBER LABEL"},
    {"path", Read_Path, "path POINT POINT [NAME] behind those points"},
};

std::string Read_Line(std::string_view line, std::vector<Airport_Facts>& airports) {
    Fields fields{line};
    const std::string_view verb = Next_Word(fields);
    if (verb == "airport") airports.emplace_back();
    for (const Fact_Kind& kind : Fact_Kinds) {
        if (verb != kind.verb) continue;
        if (airports.empty()) return "an airport has to come first";
        kind.read(fields, airports.back());
        return fields.is_bad ? "expected " + std::string(kind.usage) : "";
    }
    return "unknown fact \"" + std::string(verb) + "\"";
}

bool Is_On(const Runway_Facts& runway, Position position) {
    const Local_Metres line = To_Local(runway.end_1, runway.end_2);
    const Local_Metres place = To_Local(runway.end_1, position);
    const double length = std::hypot(line.east, line.north);
    if (length <= 0) return false;
    const double along = (place.east * line.east + place.north * line.north) / length;
    const double across = (place.east * line.north - place.north * line.east) / length;
    return along >= 0 && along <= length && std::abs(across) <= Runway_Reach;
}

/// Finds out what an unnamed path is, for the facts only tell its points.
void Settle_Kind(Path_Facts& path, const Airport_Facts& airport) {
    const Position start = airport.points[static_cast<std::size_t>(path.start)];
    const Position end = airport.points[static_cast<std::size_t>(path.end)];
    const auto runway = std::ranges::find_if(airport.runways, [start, end](const auto& one) {
        return Is_On(one, start) && Is_On(one, end);
    });
    const auto parking = std::ranges::find_if(airport.parkings, [end](const auto& one) {
        const Local_Metres way = To_Local(end, one.position);
        return std::hypot(way.east, way.north) <= Parking_Reach;
    });
    if (runway != airport.runways.end()) {
        path.kind = Path_Kind::Runway;
        path.runway = static_cast<int>(runway - airport.runways.begin());
    } else if (parking != airport.parkings.end()) {
        path.kind = Path_Kind::Parking;
        path.end = static_cast<int>(parking - airport.parkings.begin());
    }
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
    for (Airport_Facts& airport : airports) {
        for (Path_Facts& path : airport.paths) {
            if (path.taxiway.empty()) Settle_Kind(path, airport);
        }
    }
    return "";
}

}  // namespace world
