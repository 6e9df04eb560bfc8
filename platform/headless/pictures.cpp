#include "platform/files.h"
#include "platform/headless/device.h"
#include "platform/headless/printer.h"
#include "platform/headless/protocol.h"

// Pictures put into words, and the commands that show them.
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

namespace {

void Write_Svg(const std::string& svg, std::string_view utf8_path, Reply& reply) {
    const auto path = Program_Text(utf8_path, reply);
    if (!path) return;
    const Bytes bytes(svg.begin(), svg.end());
    const std::string reason = Write_File(*path, bytes);
    if (!reason.empty()) Fail(reply, reason);
}

void Tell_Calls(const Picture& picture, Reply& reply) {
    for (const Drawing_Call& call : picture.calls)
        Add_Line(reply, Call_Text(picture, call));
}

/// Null if no page of that number, counted from 1, has been printed.
const Page* Page_Numbered(std::string_view number, Reply& reply) {
    const auto& pages = Printed_Pages();
    const auto found = Whole_Number(number, 1, static_cast<long long>(pages.size()), reply);
    return found ? &pages[static_cast<std::size_t>(*found - 1)] : nullptr;
}

/// `words` are the page's number and the file.
void Write_Page(std::string_view words, Reply& reply) {
    const std::size_t blank = words.find(' ');
    if (blank == std::string_view::npos) return Fail(reply, "wrong number of arguments");
    const Page* page = Page_Numbered(words.substr(0, blank), reply);
    if (page == nullptr) return;
    const Svg_Measures measures{page->width, page->height, Page_Text_Height};
    Write_Svg(Svg_Text(page->picture, measures), words.substr(blank + 1), reply);
}

void Tell_Picture(Arguments arguments, Reply& reply) {
    const Form* form = Form_Named(arguments[0], reply);
    if (form != nullptr) Tell_Calls(form->device.picture, reply);
}

void Tell_Page(Arguments arguments, Reply& reply) {
    const Page* page = Page_Numbered(arguments[0], reply);
    if (page != nullptr) Tell_Calls(page->picture, reply);
}

void Write_Picture(Arguments arguments, Reply& reply) {
    if (arguments[0] == "page") return Write_Page(arguments[1], reply);
    const Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    const Svg_Measures measures{form->client_width, form->client_height, Window_Text_Height};
    Write_Svg(Svg_Text(form->device.picture, measures), arguments[1], reply);
}

constexpr Command commands[] = {
    {"picture", 1, Tell_Picture},
    {"pages", 0,
     [](Arguments, Reply& reply) { Add_Line(reply, std::to_string(Printed_Pages().size())); },
     true},
    {"page", 1, Tell_Page, true},
    {"svg", 2, Write_Picture},
};

}  // namespace

std::span<const Command> Picture_Commands() {
    return commands;
}

}  // namespace platform::headless
