#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <string_view>

#include "platform/code_page.h"
#include "platform/headless/device.h"

namespace platform::headless {

namespace {

/// Size of a font by the height of its line, and the depth of its base line below the line's top.
constexpr double Font_Size = 13.0 / 16;
constexpr double Base_Line = 13.0 / 16;

/// A dash and the gap behind it, likewise.
constexpr double Dash = 12.0 / 16;
constexpr double Gap = 6.0 / 16;

std::string Attribute(std::string_view name, std::string_view value) {
    return std::string(" ").append(name).append("=\"").append(value).append("\"");
}

std::string Number(double value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return std::string(digits.data(), end);
}

std::string Attribute(std::string_view name, double value) {
    return Attribute(name, std::string_view(Number(value)));
}

std::string Rgb(Colour colour) {
    return "rgb(" + Colour_Text(colour) + ")";
}

/// Windows-1252 to the text of an element. Control characters have no place in XML.
std::string Xml_Text(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            default:
                escaped += static_cast<std::uint8_t>(c) < 0x20 ? ' ' : c;
        }
    }
    return To_Utf8(escaped);
}

std::string Stroke(const Drawing_State& state, int text_height) {
    std::string text = Attribute("stroke", Rgb(state.pen_colour));
    if (state.pen_width > 1) text += Attribute("stroke-width", state.pen_width);
    if (state.pen_style == Pen_Style::Dashed) {
        const std::string dashes = Number(Dash * text_height) + " " + Number(Gap * text_height);
        text += Attribute("stroke-dasharray", dashes);
    }
    return text;
}

std::string Fill(const Drawing_State& state) {
    if (state.fill_style == Fill_Style::Hollow) return {};
    return Attribute("fill", Rgb(state.fill_colour));
}

/// The rectangle of a call, its corners put in order.
struct Bounds {
    double left;
    double top;
    double right;
    double bottom;
};

Bounds Bounds_Of(const Drawing_Call& call) {
    const auto& n = call.numbers;
    return {static_cast<double>(std::min(n[0], n[2])), static_cast<double>(std::min(n[1], n[3])),
            static_cast<double>(std::max(n[0], n[2])), static_cast<double>(std::max(n[1], n[3]))};
}

std::string Line_Element(double x1, double y1, double x2, double y2) {
    return "<line" + Attribute("x1", x1) + Attribute("y1", y1) + Attribute("x2", x2) +
           Attribute("y2", y2);
}

std::string Ellipse_Element(const Bounds& b) {
    return "<ellipse" + Attribute("cx", (b.left + b.right) / 2) +
           Attribute("cy", (b.top + b.bottom) / 2) + Attribute("rx", (b.right - b.left) / 2) +
           Attribute("ry", (b.bottom - b.top) / 2);
}

std::string Rectangle_Element(const Bounds& b) {
    return "<rect" + Attribute("x", b.left) + Attribute("y", b.top) +
           Attribute("width", b.right - b.left) + Attribute("height", b.bottom - b.top);
}

/// The angle at which the radial through a point meets the ellipse, in the ellipse's own parameter,
/// counter-clockwise on the screen.
double Angle_Of(const Bounds& b, double x, double y) {
    const double rx = (b.right - b.left) / 2;
    const double ry = (b.bottom - b.top) / 2;
    return std::atan2((b.top + ry - y) / ry, (x - b.left - rx) / rx);
}

/// In thousandths: the last digits of a sine are not the same on every system. Never "-0".
std::string Rounded(double value) {
    return Number(std::nearbyint(value * 1000) / 1000 + 0.0);
}

std::string Point_At(const Bounds& b, double angle) {
    return Rounded((b.left + b.right + (b.right - b.left) * std::cos(angle)) / 2) + " " +
           Rounded((b.top + b.bottom - (b.bottom - b.top) * std::sin(angle)) / 2);
}

std::string Arc_Element(const Drawing_Call& call) {
    const Bounds b = Bounds_Of(call);
    // An ellipse pressed flat has no angles; with a radius of 0 nothing of it shows.
    if (b.left == b.right || b.top == b.bottom) return Ellipse_Element(b);
    const double start = Angle_Of(b, call.numbers[4], call.numbers[5]);
    const double end = Angle_Of(b, call.numbers[6], call.numbers[7]);
    const double sweep = end >= start ? end - start : end - start + 2 * std::numbers::pi;
    constexpr double same = 1e-9;  // the same radial through two points, but for rounding
    if (sweep < same || sweep > 2 * std::numbers::pi - same) return Ellipse_Element(b);
    const std::string radii = Number((b.right - b.left) / 2) + " " + Number((b.bottom - b.top) / 2);
    const char* flags = sweep > std::numbers::pi ? " 0 1 0 " : " 0 0 0 ";
    return "<path" +
           Attribute("d", "M " + Point_At(b, start) + " A " + radii + flags + Point_At(b, end));
}

std::string Text_Element(const Picture& picture, const Drawing_Call& call, int text_height) {
    return "<text" + Attribute("x", call.numbers[0]) +
           Attribute("y", call.numbers[1] + Base_Line * text_height) +
           Attribute("fill", Rgb(picture.states[call.state].pen_colour)) + ">" +
           Xml_Text(Text_Of(picture, call)) + "</text>";
}

std::string Element(const Picture& picture, const Drawing_Call& call, int text_height) {
    const Drawing_State& state = picture.states[call.state];
    const std::string stroke = Stroke(state, text_height);
    const auto& n = call.numbers;
    switch (call.kind) {
        case Call_Kind::Line:
            return Line_Element(n[0], n[1], n[2], n[3]) + stroke + "/>";
        case Call_Kind::Ellipse:
            return Ellipse_Element(Bounds_Of(call)) + stroke + Fill(state) + "/>";
        case Call_Kind::Rectangle:
            return Rectangle_Element(Bounds_Of(call)) + stroke + Fill(state) + "/>";
        case Call_Kind::Arc:
            return Arc_Element(call) + stroke + "/>";
        case Call_Kind::Text:
            break;
    }
    return Text_Element(picture, call, text_height);
}

}  // namespace

std::string Svg_Text(const Picture& picture, const Svg_Measures& measures) {
    const double width = measures.width;
    const double height = measures.height;
    std::string svg = "<svg" + Attribute("xmlns", "http://www.w3.org/2000/svg") +
                      Attribute("width", width) + Attribute("height", height) + ">\n" +
                      Rectangle_Element({0, 0, width, height}) + Attribute("fill", "white") +
                      "/>\n<g" + Attribute("fill", "none") +
                      Attribute("font-family", "MS Sans Serif, Arial, sans-serif") +
                      Attribute("font-size", Font_Size * measures.text_height) +
                      Attribute("xml:space", "preserve") + ">\n";
    for (const Drawing_Call& call : picture.calls)
        svg += Element(picture, call, measures.text_height) + "\n";
    return svg + "</g>\n</svg>\n";
}

}  // namespace platform::headless
