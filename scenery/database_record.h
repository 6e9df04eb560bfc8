#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// What the writer and the reader of the database files share: fields stand packed one after the
/// other, little-endian. A text is its length in 2 bytes and its characters. An array is a word for
/// its dimensions, 0 where it was never given a size and else 1; then, only with 1, its number of
/// elements and its lower bound, a Long each, and the elements. A Long with the count of elements
/// in use follows.
namespace skerrand::database {

// Fields are copied as they lie in memory.
static_assert(std::endian::native == std::endian::little);
static_assert(sizeof(double) == 8);

inline constexpr std::size_t Longest_Stored_Text = 65535;

/// Bytes of each record without the characters of its texts.
inline constexpr std::size_t Empty_Text = 2;
inline constexpr std::size_t Array_Head = 2 + 4 + 4;  ///< of an array that was given a size
inline constexpr std::size_t Empty_Array = 2 + 4;     ///< its word and its count
inline constexpr std::size_t Empty_Airport = 9 * Empty_Text + 16 + 5 * Empty_Array;
inline constexpr std::size_t Runway_Numbers = 48;  ///< what follows the two texts
inline constexpr std::size_t Empty_Runway = 2 * Empty_Text + Runway_Numbers;
inline constexpr std::size_t Ils_Numbers = 18;  ///< what stands between the two texts
inline constexpr std::size_t Empty_Ils = 2 * Empty_Text + Ils_Numbers;
inline constexpr std::size_t Point_Size = 20;
inline constexpr std::size_t Parking_Numbers = 20;  ///< what follows the text
inline constexpr std::size_t Empty_Parking = Empty_Text + Parking_Numbers;
inline constexpr std::size_t Path_Numbers = 12;  ///< what stands ahead of the text
inline constexpr std::size_t Empty_Path = Path_Numbers + Empty_Text;

/// Takes the next field from the bytes at `from` and steps over it. The caller has made sure that
/// they are there.
template <typename Field>
void Get(const std::uint8_t*& from, Field& field) {
    std::memcpy(&field, from, sizeof field);
    from += sizeof field;
}

/// Puts a field at `to`, where there is room for it, and steps behind it.
template <typename Field>
void Put(std::uint8_t*& to, Field field) {
    std::memcpy(to, &field, sizeof field);
    to += sizeof field;
}

}  // namespace skerrand::database
