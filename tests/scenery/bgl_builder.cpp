#include "tests/scenery/bgl_builder.h"

#include <algorithm>
#include <bit>
#include <iterator>

#include "app/settings.h"
#include "scenery/bgl_reader.h"
#include "scenery/tables.h"

namespace skerrand::bgl {

namespace {

constexpr std::size_t Header_Size = 168;
constexpr std::int32_t End_Mark = 0x99999;

Bytes List(std::int32_t element_size, const std::vector<Bytes>& elements) {
    return Join({Longs({std::ssize(elements), element_size}), Join(elements)});
}

void Set_Long(Bytes& bytes, std::size_t pos, std::int64_t value) {
    const Bytes number = Longs({value});
    std::copy(number.begin(), number.end(), bytes.begin() + static_cast<std::ptrdiff_t>(pos));
}

}  // namespace

Bytes Longs(std::initializer_list<std::int64_t> values) {
    Bytes bytes;
    for (const std::int64_t value : values)
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<std::uint8_t>(value >> shift & 0xFF));
    return bytes;
}

Bytes Text(std::string_view text) {
    return {text.begin(), text.end()};
}

Bytes Join(const std::vector<Bytes>& parts) {
    Bytes all;
    for (const Bytes& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

std::int64_t Single(float value) {
    return std::bit_cast<std::int32_t>(value);
}

Bytes Record(std::int32_t type, const Bytes& body, std::optional<std::int32_t> size) {
    return Join({Longs({type, size ? *size : std::ssize(body)}), body});
}

Bytes Position(std::int32_t lat, std::int32_t lon) {
    return Record(0x10001, Longs({0, lat, 0, lon}));
}

Bytes Icao(std::string_view text) {
    return Record(0x10006, Text(text));
}

Bytes Com(std::int32_t type, std::int32_t code) {
    return Record(0x20001, Longs({code, type}));
}

Bytes Runway(const Runway_Fields& f) {
    return Record(0x10002, Longs({0, f.lat, 0, f.lon, 0, f.elevation, f.heading, 0, f.length,
                                  f.width, f.designator, f.number}));
}

Bytes Aid(std::int32_t lat, std::int32_t lon, std::int32_t course, std::int32_t freq,
          std::int32_t kind, std::string_view name) {
    const Bytes fields = Longs({0, lat, 0, lon, 0, 0, course, freq, kind, 0, 0, 0});
    return Record(0x10004, Join({fields, Text(name)}));
}

Bytes Taxi(const std::vector<Bytes>& lists) {
    return Record(0x11001, Join(lists));
}

Bytes Points(const std::vector<Bytes>& points) {
    return List(12, points);
}

Bytes Point(std::int32_t kind, float x, float z) {
    return Longs({kind, Single(x), Single(z)});
}

Bytes Parkings(const std::vector<Bytes>& parkings) {
    return List(20, parkings);
}

Bytes Parking(float x, float z, float radius, std::int32_t packed) {
    return Longs({Single(x), Single(z), Single(radius), 0, packed});
}

Bytes Paths(const std::vector<Bytes>& paths) {
    return List(32, paths);
}

Bytes Path(std::int32_t kind, std::int32_t start, std::int32_t end, std::int32_t name) {
    return Longs({kind, 0, 0, start, end, 0, 0, name});
}

Bytes Names(const std::vector<std::string>& names) {
    std::vector<Bytes> elements;
    for (const std::string& name : names) {
        elements.push_back(Text(name));
        elements.back().resize(8);
    }
    return List(8, elements);
}

Bytes Image(const std::vector<Block>& airports, const Bytes& airspaces) {
    std::size_t target = Header_Size + 24 + 8;
    for (const Block& airport : airports)
        target += 16 + airport.name.size();

    std::vector<Bytes> entries;
    std::vector<Bytes> blocks;
    for (const Block& airport : airports) {
        const Bytes goal = Longs({0x50001, static_cast<std::int64_t>(target)});
        entries.push_back(Record(0x30002, Join({goal, Text(airport.name)})));
        blocks.push_back(Join({Longs({1, 0, 1, 0}), airport.records, Longs({End_Mark})}));
        target += blocks.back().size();
    }
    const Bytes list =
        Record(0x30001, Join({Longs({0, 0, 0, std::ssize(airports) - 1}), Join(entries)}));

    Bytes file(Header_Size);
    Set_Long(file, 0x76, 0x87654321);
    Set_Long(file, 0x90, 1);
    Set_Long(file, 0x9C, airports.empty() ? 0 : Header_Size);
    file = Join({file, list, Longs({End_Mark, 0}), Join(blocks)});
    if (!airspaces.empty()) {
        Set_Long(file, 0xA4, static_cast<std::int64_t>(file.size()));
        file = Join({file, airspaces, Longs({End_Mark})});
    }
    return file;
}

Bytes Group(std::int32_t kind) {
    return Record(1, Longs({kind, 0, End_Mark, 0}));
}

Bytes Sample() {
    const Bytes taxi =
        Taxi({Points({Point(1, 10, -20), Point(1, 0, 35.5F), Point(5, -700, 0)}),
              Parkings({Parking(15, 25, 12, 0x800605), Parking(-40, -5, 0.5F, 0xA00090)}),
              Paths({Path(0, 0, 1, 1), Path(1, 1, 2, 0), Path(2, 2, 0, 0)}), Names({"", "B"})});
    const Bytes large =
        Join({Position(5000875, 0x40000000), Icao("lxgb"), Com(6, 0x01213000), Com(1, 0x01180000),
              Runway({5000875, 0x40000000, 3, 0x40000000, 6000, 150, 1, 9}),
              Aid(5000000, 0x40000001, 0x40000000, 0x01095000, 4, "ILS 09"), taxi,
              Record(0x10003, Longs({7})), Record(0x10005, {})});
    const Bytes small = Join({Position(-900000, -70000000), Icao("2W3"), Runway({}), taxi});
    return Image({{"North Front", large}, {"Strip", small}, {"Nothing", {}}},
                 Join({Record(0x30001, Longs({0})), Group(2), Group(), Group()}));
}

void Load(const Bytes& file) {
    bgl_bytes = file;
    bgl_bytes.push_back(0);
    current_file = "c:\\sim\\scenery\\a.bgl";
    airport_table.clear();
    airport_count = 0;
    airspace_files.clear();
    airspace_file_count = 0;
    first_run = true;
    database_ready = false;
}

}  // namespace skerrand::bgl
