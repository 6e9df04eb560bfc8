#include "tools/bgl_writer.h"

#include <bit>
#include <cmath>

#include "selection/rounding.h"

namespace world {

namespace {

constexpr std::size_t Header_Size = 176;
constexpr std::size_t Magic_Place = 118;
constexpr std::uint32_t Magic = 0x87654321;
constexpr std::size_t Sections_Mark_Place = 144;  // 1 says that the section offsets are valid

constexpr double Units_Of_Turn = 4294967296.0;

void Set_Bits(Bytes& bytes, std::size_t place, std::uint32_t bits) {
    for (std::size_t i = 0; i < 4; ++i) {
        bytes[place + i] = static_cast<std::uint8_t>(bits >> (8 * i));
    }
}

}  // namespace

void Put_Word(Bytes& bytes, std::int32_t value) {
    const auto bits = static_cast<std::uint32_t>(value);
    bytes.push_back(static_cast<std::uint8_t>(bits));
    bytes.push_back(static_cast<std::uint8_t>(bits >> 8));
}

void Put_Long(Bytes& bytes, std::int32_t value) {
    Put_Zeros(bytes, 4);
    Set_Long(bytes, bytes.size() - 4, value);
}

void Put_Single(Bytes& bytes, float value) {
    Put_Long(bytes, std::bit_cast<std::int32_t>(value));
}

void Put_Text(Bytes& bytes, std::string_view text) {
    bytes.insert(bytes.end(), text.begin(), text.end());
}

void Put_Zeros(Bytes& bytes, std::size_t count) {
    bytes.resize(bytes.size() + count);
}

void Set_Long(Bytes& bytes, std::size_t place, std::int32_t value) {
    Set_Bits(bytes, place, static_cast<std::uint32_t>(value));
}

std::size_t Begin_Record(Bytes& bytes, std::int32_t type) {
    const std::size_t record = bytes.size();
    Put_Long(bytes, type);
    Put_Long(bytes, 0);
    return record;
}

void End_Record(Bytes& bytes, std::size_t record) {
    Set_Long(bytes, record + 4, static_cast<std::int32_t>(bytes.size() - record - 8));
}

void Put_Chain_End(Bytes& bytes) {
    End_Record(bytes, Begin_Record(bytes, 0));
}

void Put_Latitude(Bytes& bytes, double degrees) {
    Put_Zeros(bytes, 4);
    Put_Long(bytes, Scaled_Latitude(degrees));
}

void Put_Longitude(Bytes& bytes, double degrees) {
    Put_Zeros(bytes, 4);
    Put_Long(bytes, Scaled_Longitude(degrees));
}

std::int32_t Scaled_Latitude(double degrees) {
    return skerrand::Round_To_Long(degrees * 10001750 / 90);
}

std::int32_t Scaled_Longitude(double degrees) {
    return Scaled_Angle(degrees);
}

std::int32_t Scaled_Angle(double degrees) {
    const double units = std::nearbyint(std::remainder(degrees, 360.0) * (Units_Of_Turn / 360));
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::int64_t>(units)));
}

std::int32_t Coded_Frequency(std::int32_t frequency) {
    std::uint32_t code = 0;
    for (int shift = 0; shift < 32 && frequency > 0; shift += 4, frequency /= 10) {
        code |= static_cast<std::uint32_t>(frequency % 10) << shift;
    }
    return static_cast<std::int32_t>(code);
}

Bytes New_Bgl_File() {
    Bytes bytes(Header_Size);
    Set_Bits(bytes, Magic_Place, Magic);
    Set_Long(bytes, Sections_Mark_Place, 1);
    return bytes;
}

void Begin_Section(Bytes& bytes, Section section) {
    Set_Long(bytes, static_cast<std::size_t>(section), static_cast<std::int32_t>(bytes.size()));
}

}  // namespace world
