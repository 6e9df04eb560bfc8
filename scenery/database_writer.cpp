#include <algorithm>
#include <cassert>

#include "scenery/database.h"
#include "scenery/database_record.h"

namespace skerrand {

namespace {

using namespace database;

std::size_t Cut_Length(const std::string& text) {
    return std::min(text.size(), Longest_Stored_Text);
}

std::size_t Size_Of(const std::string& text) {
    return Empty_Text + Cut_Length(text);
}

std::size_t Size_Of(const Runway_Info& runway) {
    return Runway_Numbers + Size_Of(runway.id_1) + Size_Of(runway.id_2);
}

std::size_t Size_Of(const Ils_Info& ils) {
    return Ils_Numbers + Size_Of(ils.name) + Size_Of(ils.freq);
}

std::size_t Size_Of(const Parking_Info& parking) {
    return Parking_Numbers + Size_Of(parking.name);
}

std::size_t Size_Of(const Taxi_Path& path) {
    return Path_Numbers + Size_Of(path.name);
}

std::size_t Size_Of(const Taxi_Point&) {
    return Point_Size;
}

template <typename Element>
std::size_t Size_Of(const std::vector<Element>& elements, std::size_t spare) {
    if (elements.empty()) return Empty_Array;
    std::size_t size = Array_Head + 4 + spare;
    for (const Element& element : elements)
        size += Size_Of(element);
    return size;
}

std::size_t Size_Of(const Airport_Info& airport) {
    return Size_Of(airport.airport_name) + Size_Of(airport.icao_id) + 16 +
           Size_Of(airport.clearance_freq) + Size_Of(airport.ground_freq) +
           Size_Of(airport.tower_freq) + Size_Of(airport.departure_freq) +
           Size_Of(airport.approach_freq) + Size_Of(airport.center_freq) +
           Size_Of(airport.atis_freq) + Size_Of(airport.runways, Empty_Runway) +
           Size_Of(airport.ils, Empty_Ils) + Size_Of(airport.taxi_points, 0) +
           Size_Of(airport.parkings, 0) + Size_Of(airport.taxi_paths, 0);
}

void Put_Text(std::uint8_t*& to, const std::string& text) {
    const std::size_t length = Cut_Length(text);
    Put(to, static_cast<std::uint16_t>(length));
    std::memcpy(to, text.data(), length);
    to += length;
}

void Put_Element(std::uint8_t*& to, const Runway_Info& runway) {
    Put_Text(to, runway.id_1);
    Put_Text(to, runway.id_2);
    Put(to, runway.lat_1);
    Put(to, runway.lon_1);
    Put(to, runway.lat_2);
    Put(to, runway.lon_2);
    Put(to, runway.altitude_ft);
    Put(to, runway.mag_heading_1);
    Put(to, runway.mag_heading_2);
    Put(to, runway.length_ft);
    Put(to, runway.width_ft);
}

void Put_Element(std::uint8_t*& to, const Ils_Info& ils) {
    Put_Text(to, ils.name);
    Put(to, ils.lat);
    Put(to, ils.lon);
    Put(to, ils.mag_course);
    Put_Text(to, ils.freq);
}

void Put_Element(std::uint8_t*& to, const Taxi_Point& point) {
    Put(to, point.kind);
    Put(to, point.lat);
    Put(to, point.lon);
}

void Put_Element(std::uint8_t*& to, const Parking_Info& parking) {
    Put_Text(to, parking.name);
    Put(to, parking.lat);
    Put(to, parking.lon);
    Put(to, parking.radius_ft);
}

void Put_Element(std::uint8_t*& to, const Taxi_Path& path) {
    Put(to, path.kind);
    Put(to, path.start_point);
    Put(to, path.end_point);
    Put_Text(to, path.name);
}

/// `Spare` empty elements follow those in use.
template <std::int32_t Spare, typename Element>
void Put_Array(std::uint8_t*& to, const std::vector<Element>& elements) {
    const auto count = static_cast<std::int32_t>(elements.size());
    if (count == 0) {
        Put(to, std::uint16_t{0});
    } else {
        Put(to, std::uint16_t{1});
        Put(to, count + Spare);
        Put(to, std::int32_t{0});
        for (const Element& element : elements)
            Put_Element(to, element);
        for (std::int32_t i = 0; i < Spare; ++i)
            Put_Element(to, Element{});
    }
    Put(to, count);
}

void Put_Airport(std::uint8_t*& to, const Airport_Info& airport) {
    Put_Text(to, airport.airport_name);
    Put_Text(to, airport.icao_id);
    Put(to, airport.lat);
    Put(to, airport.lon);
    Put_Text(to, airport.clearance_freq);
    Put_Text(to, airport.ground_freq);
    Put_Text(to, airport.tower_freq);
    Put_Text(to, airport.departure_freq);
    Put_Text(to, airport.approach_freq);
    Put_Text(to, airport.center_freq);
    Put_Text(to, airport.atis_freq);
    Put_Array<1>(to, airport.runways);
    Put_Array<1>(to, airport.ils);
    Put_Array<0>(to, airport.taxi_points);
    Put_Array<0>(to, airport.parkings);
    Put_Array<0>(to, airport.taxi_paths);
}

}  // namespace

platform::Bytes Airport_Table_Bytes(std::span<const Airport_Info> airports) {
    std::size_t size = Empty_Airport;
    for (const Airport_Info& airport : airports)
        size += Size_Of(airport);
    platform::Bytes bytes(size);
    std::uint8_t* to = bytes.data();
    for (const Airport_Info& airport : airports)
        Put_Airport(to, airport);
    Put_Airport(to, Airport_Info{});
    assert(to == bytes.data() + size);
    return bytes;
}

platform::Bytes Airspace_List_Bytes(std::span<const std::string> files) {
    std::size_t size = Empty_Text;
    for (const std::string& file : files)
        size += Size_Of(file);
    platform::Bytes bytes(size);
    std::uint8_t* to = bytes.data();
    for (const std::string& file : files)
        Put_Text(to, file);
    Put_Text(to, {});
    assert(to == bytes.data() + size);
    return bytes;
}

}  // namespace skerrand
