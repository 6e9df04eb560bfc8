#pragma once

#include <vector>

#include "platform/headless/device.h"
#include "platform/printer.h"

/// The printer as the script sets it, and what came out of it.
namespace platform::headless {

struct Page {
    Picture picture;
    int width = 0;  ///< of what could be printed, in dots
    int height = 0;
};

/// Pages of the documents that ended well, oldest first.
const std::vector<Page>& Printed_Pages();

}  // namespace platform::headless
