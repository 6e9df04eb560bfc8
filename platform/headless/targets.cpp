#include "platform/headless/targets.h"

#include <array>

#include "platform/code_page.h"

namespace platform::headless {

namespace {

void Fail_With_Name(Reply& reply, std::string_view reason, std::string_view name) {
    Fail(reply, std::string(reason).append(" ").append(name));
}

}  // namespace

Form* Form_Named(std::string_view name, Reply& reply) {
    for (const auto& form : forms) {
        if (form->window->name == name) return form.get();
    }
    Fail_With_Name(reply, "no window", name);
    return nullptr;
}

Target Control_Named(std::string_view name, Reply& reply) {
    const std::size_t point = name.find('.');
    Form* form = Form_Named(name.substr(0, point), reply);
    if (form == nullptr) return {};
    if (point != std::string_view::npos) {
        for (std::size_t i = 0; i < form->controls.size(); ++i) {
            if (form->window->controls[i].name == name.substr(point + 1)) return {form, i};
        }
    }
    Fail_With_Name(reply, "no control", name);
    return {};
}

Target Control_Named(std::string_view name, Control_Kind kind, Reply& reply) {
    const Target target = Control_Named(name, reply);
    if (!target || target.Row().kind == kind) return target;
    Fail_With_Name(reply, "no " + std::string(Kind_Name(kind)), name);
    return {};
}

bool Takes_Input(const Form& form, Reply& reply) {
    if (form.visible && form.enabled) return true;
    Fail(reply, "disabled");
    return false;
}

bool Takes_Input(const Target& target, Reply& reply) {
    if (!Takes_Input(*target.form, reply)) return false;
    for (std::size_t i = target.index; i != No_Container; i = target.form->controls[i].container) {
        if (target.form->controls[i].enabled) continue;
        Fail(reply, "disabled");
        return false;
    }
    return true;
}

std::string_view Kind_Name(Control_Kind kind) {
    constexpr std::array<std::string_view, 14> names = {
        "frame",  "label",    "button", "text",   "combo", "list",  "check",
        "option", "progress", "drive",  "folder", "menu",  "timer", "picture"};
    return names[static_cast<std::size_t>(kind)];
}

std::optional<std::string> Program_Text(std::string_view utf8, Reply& reply) {
    auto text = From_Utf8(utf8);
    if (!text) Fail(reply, "the text has characters that Windows-1252 does not have");
    return text;
}

std::optional<long long> Whole_Number(std::string_view text, long long least, long long most,
                                      Reply& reply) {
    long long number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, problem] = std::from_chars(text.data(), end, number);
    if (problem == std::errc() && stop == end && number >= least && number <= most) return number;
    Fail_With_Name(reply, "not a number that can stand here:", text);
    return std::nullopt;
}

}  // namespace platform::headless
