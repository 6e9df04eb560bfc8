#pragma once

#include <cstdint>

#include "platform/link.h"

/// The one link, shared by the files of the client and by nothing else.
namespace skerrand {

struct Link_State {
    platform::Window_Handle link_window = 0;  ///< the server's
    platform::Message_Id link_message = 0;
    std::int32_t link_atom = 0;  ///< sign-extended, as the server expects it
    platform::Mapping_Handle link_mapping = 0;
    std::uint8_t* link_view = nullptr;  ///< start of the block; null while closed
    std::uint8_t* link_next = nullptr;  ///< where the next request goes
};

extern Link_State link_state;

extern std::int32_t fsuipc_version;
extern std::uint32_t fs_version;  ///< of an open link the simulator's code alone, 16 bits

/// Drops what is queued.
void Empty_Batch();

}  // namespace skerrand
