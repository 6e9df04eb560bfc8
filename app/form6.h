#pragma once

#include "platform/window.h"

/// The about box: title and credits.
namespace skerrand::form6 {

extern const platform::Window window;

}  // namespace skerrand::form6
