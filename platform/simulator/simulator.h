#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// A simulator as far as clients of the link see it: a window, a state area, and an add-on that
/// works on the batches of requests which it is sent. A script puts it behind the link of the
/// headless back-end; the stand-in simulator lets an aircraft fly in it.
namespace platform::simulator {

inline constexpr std::size_t State_Area_Size = 0x10000;

struct Simulator {
    std::string window_class;  ///< of its window; empty if no simulator stands
    std::array<std::uint8_t, State_Area_Size> state_area{};
    std::uint32_t reply = 1;      ///< to every batch; one for which it is not 1 is left unanswered
    std::int64_t ones_first = 0;  ///< so many of the next batches get 1 all the same
    std::int64_t answered = 0;    ///< batches since the start of the process
};

extern Simulator stand_in;

/// A simulator that has just started stands from now on, FS2002 with its window of that class.
void Start(std::string_view window_class);

/// Puts a number into the state area, its low `width` bytes.
void Put(std::size_t offset, std::int64_t value, std::size_t width);

/// Works through a block of requests, in place, and gives the reply. Requests outside the state
/// area read 0 and write nothing. Replies 0 at a request that it does not know or that leaves the
/// block.
std::uint32_t Answer_Batch(std::span<std::uint8_t> block);

}  // namespace platform::simulator
