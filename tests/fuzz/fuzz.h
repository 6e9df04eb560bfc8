#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What libFuzzer calls with each input. A broken promise ends the run by `Check`.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline void Check(bool promise) {
    if (!promise) std::abort();
}
