#pragma once

#include <string_view>

namespace platform::desktop {

struct Live_Control;

/// Shows the caption of a control that has one, in a font that lets it fit.
void Show_Caption(Live_Control& control, std::string_view caption);

}  // namespace platform::desktop
