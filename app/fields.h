#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <type_traits>

#include "platform/files.h"

/// The fields of the program's own files, packed one after the other: numbers little-endian, a text
/// as its length in 2 bytes and its characters. A record names its fields once, for both ways.
namespace skerrand {

// Numbers are copied as they lie in memory.
static_assert(std::endian::native == std::endian::little);
static_assert(sizeof(double) == 8);

struct Field_Writer {
    platform::Bytes bytes;
};

/// Once a field is not there whole, or a Double in it is no finite number, `ok` is false, and no
/// further field is read.
struct Field_Reader {
    std::span<const std::uint8_t> left;
    bool ok = true;
};

inline void Put_Bytes(Field_Writer& file, const void* from, std::size_t count) {
    const auto* first = static_cast<const std::uint8_t*>(from);
    file.bytes.insert(file.bytes.end(), first, first + count);
}

/// The next bytes; null, with `ok` false, if there are not so many.
inline const std::uint8_t* Take_Bytes(Field_Reader& file, std::size_t count) {
    file.ok = file.ok && count <= file.left.size();
    if (!file.ok) return nullptr;
    const std::uint8_t* bytes = file.left.data();
    file.left = file.left.subspan(count);
    return bytes;
}

template <typename Number>
requires std::is_arithmetic_v<Number>
void Field(Field_Writer& file, const Number& number) {
    Put_Bytes(file, &number, sizeof number);
}

template <typename Number>
requires std::is_arithmetic_v<Number>
void Field(Field_Reader& file, Number& number) {
    if (const std::uint8_t* bytes = Take_Bytes(file, sizeof number)) {
        std::memcpy(&number, bytes, sizeof number);
        if constexpr (std::is_floating_point_v<Number>) file.ok = std::isfinite(number);
    }
}

/// A text is cut to what its length can tell.
inline void Field(Field_Writer& file, const std::string& text) {
    const auto length = static_cast<std::uint16_t>(std::min<std::size_t>(text.size(), 65535));
    Field(file, length);
    Put_Bytes(file, text.data(), length);
}

inline void Field(Field_Reader& file, std::string& text) {
    std::uint16_t length = 0;
    Field(file, length);
    if (length == 0) return text.clear();  // most texts are
    if (const std::uint8_t* bytes = Take_Bytes(file, length)) {
        text.assign(reinterpret_cast<const char*>(bytes), length);
    }
}

template <typename File, typename... Each>
void Fields(File& file, Each&... each) {
    (Field(file, each), ...);
}

}  // namespace skerrand
