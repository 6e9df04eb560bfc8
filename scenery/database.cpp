#include "scenery/database.h"

#include <concepts>

#include "app/fields.h"
#include "app/settings.h"

namespace skerrand {

std::vector<Airport_Info> airport_table;
std::int32_t airport_count = 0;

std::vector<std::string> airspace_files;
std::int32_t airspace_file_count = 0;

namespace {

/// Bytes of the shortest records and elements, so that nothing is sized beyond what a file can
/// hold: an airport and a path without texts and arrays.
constexpr std::size_t Empty_Airport = 9 * 2 + 16 + 5 * (2 + 4);
constexpr std::size_t Empty_Text = 2;
constexpr std::size_t Least_Element = 12 + 2;

/// A record that is read into, or one that is written.
template <typename Record, typename Plain>
concept Either = std::same_as<std::remove_const_t<Record>, Plain>;

template <typename File, Either<Runway_Info> Record>
void Put_Or_Get(File& file, Record& runway) {
    Fields(file, runway.id_1, runway.id_2, runway.lat_1, runway.lon_1, runway.lat_2, runway.lon_2,
           runway.altitude_ft, runway.mag_heading_1, runway.mag_heading_2, runway.length_ft,
           runway.width_ft);
}

template <typename File, Either<Ils_Info> Record>
void Put_Or_Get(File& file, Record& ils) {
    Fields(file, ils.name, ils.lat, ils.lon, ils.mag_course, ils.freq);
}

template <typename File, Either<Taxi_Point> Record>
void Put_Or_Get(File& file, Record& point) {
    Fields(file, point.kind, point.lat, point.lon);
}

template <typename File, Either<Parking_Info> Record>
void Put_Or_Get(File& file, Record& parking) {
    Fields(file, parking.name, parking.lat, parking.lon, parking.radius_ft);
}

template <typename File, Either<Taxi_Path> Record>
void Put_Or_Get(File& file, Record& path) {
    Fields(file, path.kind, path.start_point, path.end_point, path.name);
}

// An array is a word for its dimensions, 0 where it was never given a size and else 1; then, only
// with 1, its number of elements and its lower bound, a Long each, and the elements, of which the
// last `spare` are empty ones. A Long with the count of elements in use follows.

template <typename Element>
void Array(Field_Writer& file, const std::vector<Element>& elements, std::int32_t spare) {
    const auto count = static_cast<std::int32_t>(elements.size());
    Field(file, static_cast<std::int16_t>(count > 0));
    if (count > 0) {
        Field(file, count + spare);
        Field(file, std::int32_t{0});
        for (const Element& element : elements)
            Put_Or_Get(file, element);
        const Element empty;
        if (spare > 0) Put_Or_Get(file, empty);
    }
    Field(file, count);
}

template <typename Element>
void Array(Field_Reader& file, std::vector<Element>& elements, std::int32_t spare) {
    std::int16_t dimensions = 0;
    std::int32_t size = 0;
    std::int32_t lower_bound = 0;
    std::int32_t count = 0;
    Field(file, dimensions);
    if (dimensions != 0) {
        Fields(file, size, lower_bound);
        file.ok = file.ok && dimensions == 1 && lower_bound == 0 && size > spare &&
                  static_cast<std::size_t>(size) <= file.left.size() / Least_Element;
        if (!file.ok) return;
        elements.reserve(static_cast<std::size_t>(size - spare));
        for (std::int32_t i = spare; i < size && file.ok; ++i)
            Put_Or_Get(file, elements.emplace_back());
        Element unused;
        if (spare > 0) Put_Or_Get(file, unused);
    }
    Field(file, count);
    file.ok = file.ok && count == std::ssize(elements);
}

template <typename File, Either<Airport_Info> Record>
void Put_Or_Get(File& file, Record& airport) {
    Fields(file, airport.airport_name, airport.icao_id, airport.lat, airport.lon,
           airport.clearance_freq, airport.ground_freq, airport.tower_freq, airport.departure_freq,
           airport.approach_freq, airport.center_freq, airport.atis_freq);
    Array(file, airport.runways, 1);
    Array(file, airport.ils, 1);
    Array(file, airport.taxi_points, 0);
    Array(file, airport.parkings, 0);
    Array(file, airport.taxi_paths, 0);
}

template <typename File, Either<std::string> Record>
void Put_Or_Get(File& file, Record& text) {
    Field(file, text);
}

template <typename Record>
platform::Bytes Table_Bytes(std::span<const Record> records) {
    Field_Writer file;
    for (const Record& record : records)
        Put_Or_Get(file, record);
    const Record empty;
    Put_Or_Get(file, empty);
    return std::move(file.bytes);
}

/// All records in use and the one behind them, which may be absent, and nothing more: what stands
/// there belongs to another scan than the count.
template <typename Record>
bool Parse(std::span<const std::uint8_t> bytes, std::int32_t count, std::size_t least,
           std::vector<Record>& records) {
    Field_Reader file{bytes};
    file.ok = count >= 0 && static_cast<std::size_t>(count) <= bytes.size() / least;
    std::vector<Record> read(file.ok ? static_cast<std::size_t>(count) : 0);
    for (Record& record : read) {
        if (file.ok) Put_Or_Get(file, record);
    }
    Record unused;
    if (!file.left.empty()) Put_Or_Get(file, unused);
    file.ok = file.ok && file.left.empty();
    if (!file.ok) std::vector<Record>().swap(read);
    records.swap(read);
    return file.ok;
}

}  // namespace

void Release_Airport_Table() {
    std::vector<Airport_Info>().swap(airport_table);
}

void Release_Airspace_Files() {
    std::vector<std::string>().swap(airspace_files);
}

platform::Bytes Airport_Table_Bytes(std::span<const Airport_Info> airports) {
    return Table_Bytes(airports);
}

bool Parse_Airport_Table(std::span<const std::uint8_t> bytes, std::int32_t count,
                         std::vector<Airport_Info>& airports) {
    return Parse(bytes, count, Empty_Airport, airports);
}

platform::Bytes Airspace_List_Bytes(std::span<const std::string> files) {
    return Table_Bytes(files);
}

bool Parse_Airspace_List(std::span<const std::uint8_t> bytes, std::int32_t count,
                         std::vector<std::string>& files) {
    return Parse(bytes, count, Empty_Text, files);
}

std::string Write_Airport_Table() {
    return platform::Write_File(Own_File(Airports_File), Airport_Table_Bytes(airport_table));
}

std::string Write_Airspace_List() {
    return platform::Write_File(Own_File(Airspaces_File), Airspace_List_Bytes(airspace_files));
}

bool Read_Airport_Table() {
    platform::Bytes bytes;
    Release_Airport_Table();
    return platform::Read_File(Own_File(Airports_File), bytes) &&
           Parse_Airport_Table(bytes, airport_count, airport_table);
}

bool Read_Airspace_List() {
    platform::Bytes bytes;
    Release_Airspace_Files();
    return platform::Read_File(Own_File(Airspaces_File), bytes) &&
           Parse_Airspace_List(bytes, airspace_file_count, airspace_files);
}

}  // namespace skerrand
