#pragma once

#include <span>
#include <string_view>

#include "platform/headless/reply.h"

/// What the commands of the protocol do, by the topics of its description. Each takes as many
/// arguments as the table in execute.cpp says, in UTF-8.
namespace platform::headless {

using Arguments = std::span<const std::string_view>;

// Clock and life
void Advance_Command(Arguments arguments, Reply& reply);
void Clock_Command(Arguments arguments, Reply& reply);
void Running_Command(Arguments arguments, Reply& reply);

// Looking
void Forms_Command(Arguments arguments, Reply& reply);
void Controls_Command(Arguments arguments, Reply& reply);
void Get_Command(Arguments arguments, Reply& reply);
void Items_Command(Arguments arguments, Reply& reply);
void Messages_Command(Arguments arguments, Reply& reply);

// Doing, as a user would
void Click_Command(Arguments arguments, Reply& reply);
void Double_Click_Command(Arguments arguments, Reply& reply);
void Pick_Command(Arguments arguments, Reply& reply);
void Type_Command(Arguments arguments, Reply& reply);
void Folder_Command(Arguments arguments, Reply& reply);
void Drive_Command(Arguments arguments, Reply& reply);
void Mouse_Command(Arguments arguments, Reply& reply);
void Resize_Command(Arguments arguments, Reply& reply);
void Minimise_Command(Arguments arguments, Reply& reply);
void Restore_Command(Arguments arguments, Reply& reply);
void Close_Command(Arguments arguments, Reply& reply);
void Untop_Command(Arguments arguments, Reply& reply);
void Key_Command(Arguments arguments, Reply& reply);

// Pictures and pages
void Picture_Command(Arguments arguments, Reply& reply);
void Pages_Command(Arguments arguments, Reply& reply);
void Page_Command(Arguments arguments, Reply& reply);
void Svg_Command(Arguments arguments, Reply& reply);

// The surroundings
void Printer_Command(Arguments arguments, Reply& reply);
void Drives_Command(Arguments arguments, Reply& reply);
void Simulator_Command(Arguments arguments, Reply& reply);

}  // namespace platform::headless
