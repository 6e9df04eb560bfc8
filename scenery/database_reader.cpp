#include <cmath>

#include "scenery/database.h"
#include "scenery/database_record.h"

namespace skerrand {

namespace {

using namespace database;

/// The bytes that are left to read. Each operation below takes one thing from it and is false if
/// that is not there whole and sound.
struct Source {
    const std::uint8_t* next;
    const std::uint8_t* end;

    std::size_t Left() const { return static_cast<std::size_t>(end - next); }
};

/// `text` is empty before.
bool Get_Text(Source& source, std::string& text) {
    if (source.Left() < Empty_Text) return false;
    std::uint16_t length = 0;
    Get(source.next, length);
    if (source.Left() < length) return false;
    if (length == 0) return true;  // most texts are
    text.assign(reinterpret_cast<const char*>(source.next), length);
    source.next += length;
    return true;
}

template <typename Place>
bool Get_Position(Source& source, Place& place) {
    Get(source.next, place.lat);
    Get(source.next, place.lon);
    return std::isfinite(place.lat) && std::isfinite(place.lon);
}

bool Get_Element(Source& source, Runway_Info& runway) {
    if (!Get_Text(source, runway.id_1) || !Get_Text(source, runway.id_2) ||
        source.Left() < Runway_Numbers) {
        return false;
    }
    Get(source.next, runway.lat_1);
    Get(source.next, runway.lon_1);
    Get(source.next, runway.lat_2);
    Get(source.next, runway.lon_2);
    Get(source.next, runway.altitude_ft);
    Get(source.next, runway.mag_heading_1);
    Get(source.next, runway.mag_heading_2);
    Get(source.next, runway.length_ft);
    Get(source.next, runway.width_ft);
    return std::isfinite(runway.lat_1) && std::isfinite(runway.lon_1) &&
           std::isfinite(runway.lat_2) && std::isfinite(runway.lon_2);
}

bool Get_Element(Source& source, Ils_Info& ils) {
    if (!Get_Text(source, ils.name) || source.Left() < Ils_Numbers || !Get_Position(source, ils)) {
        return false;
    }
    Get(source.next, ils.mag_course);
    return Get_Text(source, ils.freq);
}

bool Get_Element(Source& source, Taxi_Point& point) {
    if (source.Left() < Point_Size) return false;
    Get(source.next, point.kind);
    return Get_Position(source, point);
}

bool Get_Element(Source& source, Parking_Info& parking) {
    if (!Get_Text(source, parking.name) || source.Left() < Parking_Numbers ||
        !Get_Position(source, parking)) {
        return false;
    }
    Get(source.next, parking.radius_ft);
    return true;
}

bool Get_Element(Source& source, Taxi_Path& path) {
    if (source.Left() < Path_Numbers) return false;
    Get(source.next, path.kind);
    Get(source.next, path.start_point);
    Get(source.next, path.end_point);
    return Get_Text(source, path.name);
}

/// The count behind an array has to be the one that its size told.
bool Get_Count(Source& source, std::int32_t expected) {
    if (source.Left() < 4) return false;
    std::int32_t count = 0;
    Get(source.next, count);
    return count == expected;
}

/// An array of which the last `spare` elements are not in use. `least` is the size in bytes of an
/// element without text, so that nothing is sized beyond what the bytes can hold.
template <typename Element>
bool Get_Array(Source& source, std::int32_t spare, std::size_t least,
               std::vector<Element>& elements) {
    if (source.Left() < Empty_Array) return false;
    std::uint16_t dimensions = 0;
    Get(source.next, dimensions);
    if (dimensions == 0) return Get_Count(source, 0);
    if (dimensions != 1 || source.Left() < Array_Head - 2) return false;
    std::int32_t size = 0;
    std::int32_t lower_bound = 0;
    Get(source.next, size);
    Get(source.next, lower_bound);
    if (lower_bound != 0 || size <= spare) return false;
    if (source.Left() / least < static_cast<std::size_t>(size)) return false;
    elements.reserve(static_cast<std::size_t>(size - spare));
    for (std::int32_t i = spare; i < size; ++i) {
        if (!Get_Element(source, elements.emplace_back())) return false;
    }
    Element unused;
    for (std::int32_t i = 0; i < spare; ++i) {
        if (!Get_Element(source, unused)) return false;
    }
    return Get_Count(source, size - spare);
}

bool Get_Record(Source& source, Airport_Info& airport) {
    return Get_Text(source, airport.airport_name) && Get_Text(source, airport.icao_id) &&
           source.Left() >= 16 && Get_Position(source, airport) &&
           Get_Text(source, airport.clearance_freq) && Get_Text(source, airport.ground_freq) &&
           Get_Text(source, airport.tower_freq) && Get_Text(source, airport.departure_freq) &&
           Get_Text(source, airport.approach_freq) && Get_Text(source, airport.center_freq) &&
           Get_Text(source, airport.atis_freq) &&
           Get_Array(source, 1, Empty_Runway, airport.runways) &&
           Get_Array(source, 1, Empty_Ils, airport.ils) &&
           Get_Array(source, 0, Point_Size, airport.taxi_points) &&
           Get_Array(source, 0, Empty_Parking, airport.parkings) &&
           Get_Array(source, 0, Empty_Path, airport.taxi_paths);
}

bool Get_Record(Source& source, std::string& file) {
    return Get_Text(source, file);
}

/// All records in use and the one behind them, which may be absent, and nothing more: what stands
/// there belongs to another scan than the count.
template <typename Record>
bool Get_Records(Source& source, std::int32_t count, std::size_t least,
                 std::vector<Record>& records) {
    if (count < 0 || source.Left() / least < static_cast<std::size_t>(count)) return false;
    records.resize(static_cast<std::size_t>(count));
    for (Record& record : records) {
        if (!Get_Record(source, record)) return false;
    }
    Record unused;
    return source.Left() == 0 || (Get_Record(source, unused) && source.Left() == 0);
}

template <typename Record>
bool Parse(std::span<const std::uint8_t> bytes, std::int32_t count, std::size_t least,
           std::vector<Record>& records) {
    records.clear();
    Source source{bytes.data(), bytes.data() + bytes.size()};
    const bool whole = Get_Records(source, count, least, records);
    if (!whole) std::vector<Record>().swap(records);
    return whole;
}

}  // namespace

bool Parse_Airport_Table(std::span<const std::uint8_t> bytes, std::int32_t count,
                         std::vector<Airport_Info>& airports) {
    return Parse(bytes, count, Empty_Airport, airports);
}

bool Parse_Airspace_List(std::span<const std::uint8_t> bytes, std::int32_t count,
                         std::vector<std::string>& files) {
    return Parse(bytes, count, Empty_Text, files);
}

}  // namespace skerrand
