#pragma once

#include <cstdint>
#include <string>

#include "platform/link.h"

/// What the files of the link share. None of them needs the toolkit.
namespace platform::desktop {

inline constexpr std::uint32_t Error_Access_Denied = 5;
inline constexpr std::uint32_t Error_Invalid_Handle = 6;
inline constexpr std::uint32_t Error_Not_Enough_Memory = 8;
inline constexpr std::uint32_t Error_Invalid_Parameter = 87;

/// What `GetLastError` answers from now on; 0 is no error.
void Set_Last_Error(std::uint32_t error);

/// The text of the atom that a message's parameter holds; empty if there is none.
std::string Atom_Text(std::int32_t parameter);

}  // namespace platform::desktop
