#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

/// The window behind which a stand-in simulator answers the link. There is one in a process.
namespace platform::simulator {

/// Works on a block of requests, in place, and gives the reply.
using Answer = std::function<std::uint32_t(std::span<std::uint8_t> block)>;

/// A window of that class stands from now on. Gives an empty text, or why there can be none.
std::string Open_Window(const char* window_class);
void Close_Window();

/// From now on the end of that process ends `Serve` and `Wait`. False if there is none.
bool Follow(int process);

/// Answers messages. Returns when the followed process has ended.
void Serve(const Answer& answer);

/// Waits in place, answering nothing; false if the followed process ends meanwhile.
bool Wait(int milliseconds);

}  // namespace platform::simulator
