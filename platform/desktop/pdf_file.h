#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Documents as PDF files in the working folder, for systems without a printer.
namespace platform::desktop {

/// Writes "TITLE.pdf", or "TITLE (2).pdf" and so on where a file stands already; characters of the
/// title that a file's name cannot hold become "_". The name that it took; nothing if that fails,
/// and then no file is left.
std::optional<std::string> Save_Pdf(std::string_view title, std::span<const std::uint8_t> pdf);

}  // namespace platform::desktop
