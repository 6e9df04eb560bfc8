#include "platform/files.h"
#include "platform/headless/commands.h"
#include "platform/headless/form.h"
#include "platform/headless/picture_text.h"
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

}  // namespace

void Picture_Command(Arguments arguments, Reply& reply) {
    const Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    const Picture& picture = form->device.picture;
    for (const Drawing_Call& call : picture.calls)
        Add_Line(reply, Call_Text(picture, call));
}

void Pages_Command(Arguments, Reply& reply) {
    Add_Line(reply, "0");
}

void Svg_Command(Arguments arguments, Reply& reply) {
    if (arguments[0] == "page") return Unbuilt_Command(arguments, reply);
    const Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    Write_Svg(Svg_Text(form->device.picture, form->client_width, form->client_height), arguments[1],
              reply);
}

}  // namespace platform::headless
