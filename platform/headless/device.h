#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/drawing.h"

namespace platform::headless {

struct Drawing_State {
    Colour pen_colour = Colour_Black;
    int pen_width = 1;
    Pen_Style pen_style = Pen_Style::Solid;
    Colour fill_colour = Colour_Black;
    Fill_Style fill_style = Fill_Style::Hollow;

    friend constexpr bool operator==(const Drawing_State&, const Drawing_State&) = default;
};

/// Height of a line of text, in pixels of the target.
inline constexpr int Window_Text_Height = 16;
inline constexpr int Page_Text_Height = 100;

enum class Call_Kind : std::uint8_t { Line, Ellipse, Rectangle, Arc, Text };

/// One drawing call. A line's numbers are its two ends, those of a text its point and the place and
/// length of the text in the picture's `texts`; the others stand as they were passed.
struct Drawing_Call {
    Call_Kind kind{};
    std::uint32_t state = 0;  ///< into the picture's `states`
    std::array<int, 8> numbers{};
};

/// What has been drawn on a target, in order.
struct Picture {
    std::vector<Drawing_Call> calls;
    std::vector<Drawing_State> states;
    std::string texts;  ///< all texts, one behind the other, in Windows-1252
};

inline std::string_view Text_Of(const Picture& picture, const Drawing_Call& call) {
    return std::string_view(picture.texts)
        .substr(static_cast<std::size_t>(call.numbers[2]),
                static_cast<std::size_t>(call.numbers[3]));
}

}  // namespace platform::headless

namespace platform {

struct Device_Context {
    headless::Drawing_State state;
    bool state_is_new = true;  ///< no call has been recorded with this state
    int x = 0;                 ///< the current position
    int y = 0;
    headless::Picture picture;
};

namespace headless {

/// The call with the state that it was made in, as `picture` and `page` show it. Windows-1252.
std::string Call_Text(const Picture& picture, const Drawing_Call& call);

/// "R,G,B".
std::string Colour_Text(Colour colour);

/// Measures of a picture in its pixels.
struct Svg_Measures {
    int width = 0;
    int height = 0;
    int text_height = 0;
};

/// The picture as an SVG file.
std::string Svg_Text(const Picture& picture, const Svg_Measures& measures);

/// Forgets the calls, but neither the state nor the memory, which serves the next ones.
void Wipe(Device_Context& device);

}  // namespace headless

}  // namespace platform
