#pragma once

#include <algorithm>
#include <bit>
#include <initializer_list>
#include <iterator>
#include <optional>

#include "app/settings.h"
#include "scenery/bgl_reader.h"
#include "scenery/database.h"

/// Images of BGL files, built from the bytes of their parts.
namespace skerrand::bgl {

using platform::Bytes;

inline Bytes Longs(std::initializer_list<std::int64_t> values) {
    Bytes bytes;
    for (const std::int64_t value : values)
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<std::uint8_t>(value >> shift & 0xFF));
    return bytes;
}

constexpr auto Text = [](std::string_view text) { return Bytes(text.begin(), text.end()); };

inline Bytes Join(const std::vector<Bytes>& parts) {
    Bytes all;
    for (const Bytes& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

inline Bytes Prefix(const Bytes& bytes, std::size_t length) {
    return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)};
}

/// Lays a part over what stands from `at` on.
inline void Put(Bytes& bytes, std::size_t at, const Bytes& part) {
    bytes.resize(std::max(bytes.size(), at + part.size()));
    std::copy(part.begin(), part.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

/// Head and body. `size` stands in the head, the true one if it is not given.
inline Bytes Record(std::int32_t type, const Bytes& body, std::optional<std::int32_t> size = {}) {
    return Join({Longs({type, size ? *size : std::ssize(body)}), body});
}

// Records of an airport block. Positions and angles are as stored.

constexpr auto Position = [](int lat, int lon) { return Record(0x10001, Longs({0, lat, 0, lon})); };
constexpr auto Icao = [](std::string_view text) { return Record(0x10006, Text(text)); };
constexpr auto Com = [](int type, int code) { return Record(0x20001, Longs({code, type})); };

struct Runway_Fields {
    std::int32_t lat = 0, lon = 0, elevation = 0, heading = 0;
    std::int32_t length = 500, width = 100, designator = 0, number = 9;
};
inline Bytes Runway(const Runway_Fields& f) {
    return Record(0x10002, Longs({0, f.lat, 0, f.lon, 0, f.elevation, f.heading, 0, f.length,
                                  f.width, f.designator, f.number}));
}

inline Bytes Aid(std::int32_t lat, std::int32_t lon, std::int32_t course, std::int32_t freq,
                 std::int32_t kind, std::string_view name) {
    const Bytes fields = Longs({0, lat, 0, lon, 0, 0, course, freq, kind, 0, 0, 0});
    return Record(0x10004, Join({fields, Text(name)}));
}

constexpr auto Taxi = [](const std::vector<Bytes>& lists) { return Record(0x11001, Join(lists)); };

/// Points have 12 bytes, parkings 20, paths 32, names 8.
inline Bytes List(std::int32_t element_size, const std::vector<Bytes>& elements) {
    return Join({Longs({std::ssize(elements), element_size}), Join(elements)});
}

constexpr auto Single = [](float value) { return std::bit_cast<std::int32_t>(value); };

inline Bytes Point(std::int32_t kind, float x, float z) {
    return Longs({kind, Single(x), Single(z)});
}

inline Bytes Parking(float x, float z, float radius, std::int32_t packed) {
    return Longs({Single(x), Single(z), Single(radius), 0, packed});
}

inline Bytes Path(std::int32_t kind, std::int32_t start, std::int32_t end, std::int32_t name) {
    return Longs({kind, 0, 0, start, end, 0, 0, name});
}

inline Bytes Name(std::string_view name) {
    return Join({Text(name), Bytes(8 - name.size())});
}

/// Puts a file in hand for a scan, with the tables empty.
inline void Load(const Bytes& file) {
    bgl_bytes = Join({file, {0}});
    current_file = "c:\\sim\\scenery\\a.bgl";
    Release_Airport_Table();
    Release_Airspace_Files();
    airport_count = airspace_file_count = 0;
    first_run = true;
    database_ready = false;
}

}  // namespace skerrand::bgl
