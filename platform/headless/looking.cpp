#include "platform/headless/commands.h"
#include "platform/headless/form.h"
#include "platform/headless/message_box.h"
#include "platform/headless/program.h"
#include "platform/headless/targets.h"
#include "platform/headless/timers.h"

namespace platform::headless {

namespace {

/// Long enough for any script, and far from the end of what the clock can count.
constexpr long long Longest_Advance = 1'000'000'000'000;

std::string_view Icon_Name(Icon icon) {
    switch (icon) {
        case Icon::Information:
            return "information";
        case Icon::Exclamation:
            return "exclamation";
        case Icon::Critical:
            break;
    }
    return "critical";
}

bool Has_Entries(Control_Kind kind) {
    return kind == Control_Kind::Combo || kind == Control_Kind::List ||
           kind == Control_Kind::Drive || kind == Control_Kind::Folder;
}

}  // namespace

void Advance_Command(Arguments arguments, Reply& reply) {
    const auto milliseconds = Whole_Number(arguments[0], 0, Longest_Advance, reply);
    if (milliseconds) Advance(*milliseconds);
}

void Clock_Command(Arguments, Reply& reply) {
    Add_Line(reply, std::to_string(Clock()));
}

void Running_Command(Arguments, Reply& reply) {
    Add_Line(reply, Is_Over() ? "no" : "yes");
}

void Forms_Command(Arguments, Reply& reply) {
    for (const auto& form : forms)
        Add_Line(reply, form->window->name);
}

void Controls_Command(Arguments arguments, Reply& reply) {
    const Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    for (const Control& control : form->window->controls) {
        Add_Line(reply, std::string(control.name).append(" ").append(Kind_Name(control.kind)));
    }
}

void Items_Command(Arguments arguments, Reply& reply) {
    const Target target = Control_Named(arguments[0], reply);
    if (!target) return;
    if (!Has_Entries(target.Row().kind)) return Fail(reply, "this control has no entries");
    for (const std::string& entry : Entries_Of(target.Ref()))
        Add_Line(reply, entry);
}

void Messages_Command(Arguments, Reply& reply) {
    for (const Shown_Message& message : Take_Messages()) {
        Add_Fields(reply, {Icon_Name(message.icon), message.title, message.text});
    }
}

}  // namespace platform::headless
