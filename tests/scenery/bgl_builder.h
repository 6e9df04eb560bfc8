#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

/// Images of BGL files, built from the bytes of their parts.
namespace skerrand::bgl {

using platform::Bytes;

Bytes Longs(std::initializer_list<std::int64_t> values);
Bytes Text(std::string_view text);
Bytes Join(const std::vector<Bytes>& parts);
std::int64_t Single(float value);  ///< its bits, for `Longs`

/// Head and body. `size` stands in the head, the true one if it is not given.
Bytes Record(std::int32_t type, const Bytes& body, std::optional<std::int32_t> size = {});

// Records of an airport block. Positions and angles are as stored.
Bytes Position(std::int32_t lat, std::int32_t lon);
Bytes Icao(std::string_view text);
Bytes Com(std::int32_t type, std::int32_t code);
struct Runway_Fields {
    std::int32_t lat = 0, lon = 0, elevation = 0, heading = 0;
    std::int32_t length = 500, width = 100, designator = 0, number = 9;
};
Bytes Runway(const Runway_Fields& fields);
Bytes Aid(std::int32_t lat, std::int32_t lon, std::int32_t course, std::int32_t freq,
          std::int32_t kind, std::string_view name);
Bytes Taxi(const std::vector<Bytes>& lists);

// Lists of a taxi block.
Bytes Points(const std::vector<Bytes>& points);
Bytes Parkings(const std::vector<Bytes>& parkings);
Bytes Paths(const std::vector<Bytes>& paths);
Bytes Names(const std::vector<std::string>& names);

// Elements of the lists.
Bytes Point(std::int32_t kind, float x, float z);
Bytes Parking(float x, float z, float radius, std::int32_t packed);
Bytes Path(std::int32_t kind, std::int32_t start, std::int32_t end, std::int32_t name);

struct Block {
    std::string name;  ///< display name of the airport
    Bytes records;
};

/// A whole file; an empty airspace section is none.
Bytes Image(const std::vector<Block>& airports, const Bytes& airspaces = {});

Bytes Group(std::int32_t kind = 4);  ///< top-level entry of the airspace section
Bytes Sample();                      ///< a sound file with every kind of record

/// Puts a file in hand for a scan, with the tables empty.
void Load(const Bytes& file);

}  // namespace skerrand::bgl
