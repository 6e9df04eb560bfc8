#pragma once

#include <bit>
#include <cstdint>
#include <span>

/// The shared block: requests with their data, one behind the other without gaps, and an end mark.
namespace skerrand {

inline constexpr std::uint32_t Block_Size = 0x8000;
/// What requests and end mark may fill; the rest stays unused.
inline constexpr std::uint32_t Batch_Limit = 0x7F00;

/// Stands where the next request would.
using End_Mark = std::uint32_t;

inline constexpr std::uint16_t Id_End = 0;
inline constexpr std::uint16_t Id_Read = 1;
inline constexpr std::uint16_t Id_Write = 2;

/// Head of a read; `byte_count` bytes follow that the server fills in.
struct Read_Request {
    std::uint32_t request_id = Id_Read;
    std::uint32_t fs_offset = 0;
    std::uint32_t byte_count = 0;
    /// The client's own, which the server hands back: the answer's place, counted from 1; 0 if the
    /// answer goes nowhere.
    std::uint32_t client_address = 0;
};

/// Head of a write; `byte_count` bytes of data follow.
struct Write_Request {
    std::uint32_t request_id = Id_Write;
    std::uint32_t fs_offset = 0;
    std::uint32_t byte_count = 0;
};

static_assert(sizeof(Read_Request) == 16 && sizeof(Write_Request) == 12);
static_assert(std::endian::native == std::endian::little,
              "heads and answers are moved as they are");

/// Where the answer of a read goes, and how much of it was asked for.
struct Answer_Place {
    void* variable = nullptr;
    std::uint32_t byte_count = 0;
};

/// Copies the answers of a block that the server has handed back. Nothing is taken on trust: no
/// byte outside the block is read, and a place gets at most what was asked for it. False at a
/// request of an unknown kind or one that leaves the block; what stands ahead of it is copied.
bool Take_Answers(std::span<const std::uint8_t> block, std::span<const Answer_Place> places);

}  // namespace skerrand
