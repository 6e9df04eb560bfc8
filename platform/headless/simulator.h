#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// The simulator that a script puts behind the link: a window, a state area, and an add-on that
/// works on the batches of requests which it is sent.
namespace platform::headless {

inline constexpr std::size_t State_Area_Size = 0x10000;

/// As at the start of the process: no simulator, no batch answered.
void Reset_Simulator();

/// A simulator stands from now on, its window of that class. Its state area is as of one that has
/// just started, and it answers every batch.
void Start_Simulator(std::string_view window_class);
void Stop_Simulator();

/// Whether a simulator stands, and its window is of that class.
bool Has_Window(std::string_view window_class);
bool Simulator_Stands();

/// The whole state area, for the script to look at and to change.
std::span<std::uint8_t> State_Area();

/// What it replies to batches: 1 to so many of the next, then always `reply`. It leaves a batch
/// unanswered for which the reply is not 1.
void Set_Reply(std::uint32_t reply, std::int64_t ones_before);

/// Works through a block of requests and gives the reply. Requests outside the state area read 0
/// and write nothing. Replies 0 at a request that it does not know or that leaves the block.
std::uint32_t Answer_Batch(std::span<std::uint8_t> block);

/// How many batches were answered since the start of the process.
std::int64_t Answered_Batches();

}  // namespace platform::headless
