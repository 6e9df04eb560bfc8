#pragma once

#include <cstdint>

#include "platform/window.h"

/// The dialog that lists the five events with their keys. It edits a copy of the settings, which
/// "Ok" takes over and stores.
namespace skerrand::form7 {

extern const platform::Window window;

/// Gives the event of the selected line a key, and lists the events anew. Nothing without a
/// selected line.
void Assign_To_Selected(std::int32_t key);

/// Whether the dialog and its controls take input: not while the next key is awaited.
void Set_Input(bool enabled);

}  // namespace skerrand::form7
