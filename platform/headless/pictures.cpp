#include "platform/files.h"
#include "platform/headless/commands.h"
#include "platform/headless/form.h"
#include "platform/headless/picture_text.h"
#include "platform/headless/printer.h"
#include "platform/headless/targets.h"

namespace platform::headless {

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

}  // namespace

void Picture_Command(Arguments arguments, Reply& reply) {
    const Form* form = Form_Named(arguments[0], reply);
    if (form != nullptr) Tell_Calls(form->device.picture, reply);
}

void Pages_Command(Arguments, Reply& reply) {
    Add_Line(reply, std::to_string(Printed_Pages().size()));
}

void Page_Command(Arguments arguments, Reply& reply) {
    const Page* page = Page_Numbered(arguments[0], reply);
    if (page != nullptr) Tell_Calls(page->picture, reply);
}

void Svg_Command(Arguments arguments, Reply& reply) {
    if (arguments[0] == "page") return Write_Page(arguments[1], reply);
    const Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    const Svg_Measures measures{form->client_width, form->client_height, Window_Text_Height};
    Write_Svg(Svg_Text(form->device.picture, measures), arguments[1], reply);
}

}  // namespace platform::headless
