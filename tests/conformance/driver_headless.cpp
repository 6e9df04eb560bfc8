#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

#include "platform/code_page.h"
#include "platform/headless/form.h"
#include "platform/headless/message_box.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "platform/headless/timers.h"
#include "tests/conformance/driver.h"

namespace driver {

namespace {

using namespace platform;
using headless::Call_Kind;

std::string Name(Control_Ref control) {
    return std::string(control.window->name) + "." + control.window->controls[control.index].name;
}

void Do(const std::string& verb, const std::string& arguments) {
    headless::Execute(verb + " " + arguments);
}

/// A call's corners in order, and where a pixel lies in the ellipse inside them: 1 is its outline.
struct Shape {
    explicit Shape(const headless::Drawing_Call& call)
        : left(std::min(call.numbers[0], call.numbers[2])),
          top(std::min(call.numbers[1], call.numbers[3])),
          right(std::max(call.numbers[0], call.numbers[2])),
          bottom(std::max(call.numbers[1], call.numbers[3])) {}

    double X(double x) const { return (2 * x - left - right) / (right - left); }
    double Y(double y) const { return (2 * y - top - bottom) / (bottom - top); }
    double Edge() const { return 4.0 / (right - left); }

    double left, top, right, bottom;
};

bool Is_On_Ellipse(const Shape& shape, int x, int y) {
    return std::abs(std::hypot(shape.X(x), shape.Y(y)) - 1) <= shape.Edge();
}

bool Is_On_Outline(const Shape& shape, int x, int y) {
    const bool inside = x >= shape.left && x <= shape.right && y >= shape.top && y <= shape.bottom;
    return inside &&
           (x - shape.left < 2 || shape.right - x < 2 || y - shape.top < 2 || shape.bottom - y < 2);
}

/// Whether the angle of a pixel lies on the way from one radial to the other, counter-clockwise.
bool Is_On_Sweep(const Shape& shape, const headless::Drawing_Call& call, int x, int y) {
    const auto angle = [&shape](double px, double py) {
        return std::atan2(-shape.Y(py), shape.X(px));
    };
    const auto from_start = [start = angle(call.numbers[4], call.numbers[5])](double end) {
        return end > start ? end - start : end - start + 2 * std::numbers::pi;
    };
    return from_start(angle(x, y)) <= from_start(angle(call.numbers[6], call.numbers[7]));
}

bool Is_On_Line(const headless::Drawing_Call& call, int width, int x, int y) {
    const auto& n = call.numbers;
    const double length = std::hypot(n[2] - n[0], n[3] - n[1]);
    const double along = ((x - n[0]) * (n[2] - n[0]) + (y - n[1]) * (n[3] - n[1])) / length;
    const double beside = ((x - n[0]) * (n[3] - n[1]) - (y - n[1]) * (n[2] - n[0])) / length;
    return along >= 0 && along <= length && std::abs(beside) <= (width + 1) / 2.0;
}

enum class Part { Beside, Outline, Inside };

Part Part_At(const headless::Drawing_Call& call, int width, int x, int y) {
    if (call.kind == Call_Kind::Line) {
        return Is_On_Line(call, width, x, y) ? Part::Outline : Part::Beside;
    }
    if (call.kind == Call_Kind::Text) return Part::Beside;
    const Shape shape(call);
    if (call.kind == Call_Kind::Rectangle) {
        if (Is_On_Outline(shape, x, y)) return Part::Outline;
        return std::abs(shape.X(x)) < 1 && std::abs(shape.Y(y)) < 1 ? Part::Inside : Part::Beside;
    }
    const bool on_way = call.kind == Call_Kind::Ellipse || Is_On_Sweep(shape, call, x, y);
    if (Is_On_Ellipse(shape, x, y)) return on_way ? Part::Outline : Part::Beside;
    const bool inside = std::hypot(shape.X(x), shape.Y(y)) < 1;
    return inside && call.kind == Call_Kind::Ellipse ? Part::Inside : Part::Beside;
}

}  // namespace

void Prepare(int&, char**) {}

void Start(Handler start) {
    headless::Begin(start);
}

bool Running() {
    return !headless::Is_Over();
}

void Advance(int milliseconds) {
    headless::Advance(milliseconds);
}

long long Clock() {
    return headless::Clock();
}

void Click(Control_Ref control) {
    Do("click", Name(control));
}

void Double_Click(Control_Ref list) {
    Do("double_click", Name(list));
}

void Pick(Control_Ref list_or_combo, int index) {
    Do("pick", Name(list_or_combo) + " " + std::to_string(index));
}

void Type(Control_Ref combo, const std::string& text) {
    Do("type", Name(combo) + " " + To_Utf8(text));
}

void Press(const Window& window, Mouse_Button button, int x, int y) {
    const char* const names[] = {" left ", " right ", " middle "};
    Do("mouse", window.name + std::string(names[static_cast<int>(button)]) + std::to_string(x) +
                    " " + std::to_string(y));
}

void Resize(const Window& window, int client_width, int client_height) {
    Do("resize", std::string(window.name) + " " +
                     std::to_string(client_width + headless::Frame_Width(window)) + " " +
                     std::to_string(client_height + headless::Frame_Height(window)));
}

void Minimise(const Window& window) {
    Do("minimise", window.name);
}

void Restore(const Window& window) {
    Do("restore", window.name);
}

void Close(const Window& window) {
    Do("close", window.name);
}

void Key(const Window&, int code, bool down) {
    Do("key", std::to_string(code) + (down ? " down" : " up"));
}

void Hold_Messages(int) {}  // they are answered before any time has passed

std::vector<Message> Take_Messages() {
    std::vector<Message> messages;
    for (const auto& shown : headless::Take_Messages()) {
        messages.push_back({shown.icon, shown.title, shown.text});
    }
    return messages;
}

Colour Pixel(const Window& window, int x, int y) {
    Colour colour = window.back_colour;
    const headless::Picture& picture = Window_Device(window)->picture;
    for (const headless::Drawing_Call& call : picture.calls) {
        const headless::Drawing_State& state = picture.states[call.state];
        const Part part = Part_At(call, state.pen_width, x, y);
        if (part == Part::Outline) colour = state.pen_colour;
        if (part == Part::Inside && state.fill_style == Fill_Style::Solid) {
            colour = state.fill_colour;
        }
    }
    return colour;
}

}  // namespace driver
