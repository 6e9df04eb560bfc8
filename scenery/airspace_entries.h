#pragma once

#include <cstdint>

#include "scenery/bgl_reader.h"

/// The entries of the airspace section, which have one layout on both levels: the section is a
/// chain of them, and so are the children of a group.
namespace skerrand {

/// From an entry to its first child.
inline constexpr std::int64_t Entry_Head = 16;

/// Walks a chain of entries from `start` on, and calls `read` with the position of each container
/// of that kind. An entry of an unknown type ends the chain; there is no other end mark. False
/// after a fault of the file, which `read` tells of by a false answer too.
template <typename Read>
bool Walk_Containers(std::int64_t start, std::int32_t kind, Read read) {
    constexpr std::int32_t container = 1;
    constexpr std::int32_t passed = 0x30001;
    std::int64_t entry = start;
    for (;;) {
        if (!Can_Read(entry, 4)) return false;
        const std::int32_t type = Read_Long(entry);
        if (type != container && type != passed) return true;
        if (!Can_Read(entry + 4, type == container ? 8 : 4)) return false;
        const std::int32_t size = Read_Long(entry + 4);
        if (type == container && Read_Long(entry + 8) == kind && !read(entry)) return false;
        if (!Step_Over(entry, size)) return false;
    }
}

}  // namespace skerrand
