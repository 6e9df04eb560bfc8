#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "platform/link.h"

/// The link operations of a platform that lives inside the test: each can be made to fail, a wait
/// only moves a number, and the server is a function over the block.
struct Fake_Link {
    std::string window_class = "UIPCMAIN";  ///< of the one window that stands
    std::uint32_t process_id = 0xABCDEF01;
    platform::Message_Id message = 0xC0DE;
    platform::Atom atom = 0xC001;
    bool mapping_fails = false;
    bool mapping_exists = false;
    bool view_fails = false;
    int failing_sends = 0;  ///< so many sends fail before the first that succeeds
    std::uint32_t error = 0;
    std::uint32_t reply = 1;
    std::function<void(std::span<std::uint8_t>)> server = [](auto) {};

    std::uint32_t clock = 0;
    int sends = 0;
    std::int32_t parameter = 0;  ///< of the last message
    std::string calls;           ///< what was made and released, a word each
    std::unique_ptr<std::uint8_t[]> block;
};

extern Fake_Link fake;
