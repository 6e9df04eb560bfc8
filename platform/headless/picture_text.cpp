#include "platform/headless/picture_text.h"

#include <initializer_list>
#include <span>

namespace platform::headless {

namespace {

std::string Pen_Text(const Drawing_State& state) {
    const char* style = state.pen_style == Pen_Style::Solid ? " | solid " : " | dashed ";
    return style + std::to_string(state.pen_width) + " " + Colour_Text(state.pen_colour);
}

std::string Fill_Text(const Drawing_State& state) {
    const char* style = state.fill_style == Fill_Style::Solid ? " | solid " : " | hollow ";
    return style + Colour_Text(state.fill_colour);
}

std::string Name_And_Numbers(const char* name, std::span<const int> numbers) {
    std::string text = name;
    for (const int number : numbers)
        text += " " + std::to_string(number);
    return text;
}

}  // namespace

std::string Colour_Text(Colour colour) {
    return std::to_string(colour.red) + "," + std::to_string(colour.green) + "," +
           std::to_string(colour.blue);
}

std::string Call_Text(const Picture& picture, const Drawing_Call& call) {
    const Drawing_State& state = picture.states[call.state];
    const std::span<const int> numbers = call.numbers;
    switch (call.kind) {
        case Call_Kind::Line:
            return Name_And_Numbers("line", numbers.first(4)) + Pen_Text(state);
        case Call_Kind::Ellipse:
            return Name_And_Numbers("ellipse", numbers.first(4)) + Pen_Text(state) +
                   Fill_Text(state);
        case Call_Kind::Rectangle:
            return Name_And_Numbers("rectangle", numbers.first(4)) + Pen_Text(state) +
                   Fill_Text(state);
        case Call_Kind::Arc:
            return Name_And_Numbers("arc", numbers) + Pen_Text(state);
        case Call_Kind::Text:
            break;
    }
    std::string text = Name_And_Numbers("text", numbers.first(2)) + " ";
    text += Text_Of(picture, call);
    return text + " | " + Colour_Text(state.pen_colour);
}

}  // namespace platform::headless
