#pragma once

#include "platform/window.h"

/// The dialog that captures the new key of one event.
namespace skerrand::form8 {

extern const platform::Window window;

}  // namespace skerrand::form8
