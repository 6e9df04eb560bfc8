#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>
#include <iterator>

#include "platform/headless/commands.h"
#include "platform/headless/form.h"
#include "platform/headless/picture_text.h"
#include "platform/headless/targets.h"

namespace platform::headless {

namespace {

using enum Control_Kind;
using Kinds = unsigned;

constexpr Kinds Of(std::initializer_list<Control_Kind> kinds) {
    Kinds set = 0;
    for (const Control_Kind kind : kinds)
        set |= 1U << static_cast<unsigned>(kind);
    return set;
}

constexpr Kinds Captioned = Of({Frame, Label, Button, Check, Option, Menu});
constexpr Kinds Listing = Of({Combo, List, Drive, Folder});
constexpr Kinds With_Font = (Captioned & ~Of({Menu})) | Of({Text}) | Listing;
constexpr Kinds Placed = With_Font | Of({Progress, Picture});
constexpr Kinds Shown = Placed | Of({Menu});
constexpr Kinds Any = Shown | Of({Timer});

std::string Yes_No(bool value) {
    return value ? "yes" : "no";
}

std::string Number(double value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return std::string(digits.data(), end);
}

std::string Entry_At(const Control_State& state) {
    return state.index < 0 ? std::string() : state.entries[static_cast<std::size_t>(state.index)];
}

std::string Text_Value(const Target& target) {
    const Control_Kind kind = target.Row().kind;
    return kind == Text || kind == Combo ? target.State().text : Entry_At(target.State());
}

std::string Enabled_Value(const Target& target) {
    return Yes_No(target.Row().kind == Timer ? target.State().running : target.State().enabled);
}

std::string Value_Value(const Target& target) {
    if (target.Row().kind == Progress) return std::to_string(target.State().progress.value);
    return target.State().checked ? "1" : "0";
}

std::string Font_Value(const Target& target) {
    const std::string name = target.Row().font.name;
    return name.empty() ? "MS Sans Serif" : name;
}

std::string Font_Size_Value(const Target& target) {
    const double size = target.Row().font.size;
    return Number(size > 0 ? size : 8.25);
}

struct Control_Property {
    std::string_view name;
    Kinds kinds;
    std::string (*value)(const Target& target);
};

constexpr Control_Property control_properties[] = {
    {"caption", Captioned, [](const Target& t) { return t.State().caption; }},
    {"text", Of({Text, Combo, List, Drive}), Text_Value},
    {"enabled", Any, Enabled_Value},
    {"visible", Shown, [](const Target&) { return Yes_No(true); }},
    {"left", Placed, [](const Target& t) { return std::to_string(t.Row().at.left); }},
    {"top", Placed, [](const Target& t) { return std::to_string(t.Row().at.top); }},
    {"width", Placed, [](const Target& t) { return std::to_string(t.Row().at.width); }},
    {"height", Placed, [](const Target& t) { return std::to_string(t.Row().at.height); }},
    {"value", Of({Check, Option, Progress}), Value_Value},
    {"min", Of({Progress}),
     [](const Target& t) { return std::to_string(t.State().progress.minimum); }},
    {"max", Of({Progress}),
     [](const Target& t) { return std::to_string(t.State().progress.maximum); }},
    {"index", Listing, [](const Target& t) { return std::to_string(t.State().index); }},
    {"count", Listing, [](const Target& t) { return std::to_string(Entry_Count(t.Ref())); }},
    {"interval", Of({Timer}), [](const Target& t) { return std::to_string(t.State().interval); }},
    {"read_only", Of({Text}), [](const Target& t) { return Yes_No(t.Row().read_only); }},
    {"colour", Of({Label}), [](const Target& t) { return Colour_Text(t.Row().colour); }},
    {"transparent", Of({Label}), [](const Target& t) { return Yes_No(t.State().transparent); }},
    {"bold", With_Font, [](const Target& t) { return Yes_No(t.Row().font.bold); }},
    {"font", With_Font, Font_Value},
    {"font_size", With_Font, Font_Size_Value},
    {"path", Of({Folder}), [](const Target& t) { return t.State().path; }},
    {"drive", Of({Drive}), [](const Target& t) { return Entry_At(t.State()); }},
};

struct Window_Property {
    std::string_view name;
    std::string (*value)(const Form& form);
};

constexpr Window_Property window_properties[] = {
    {"caption", [](const Form& form) { return form.caption; }},
    {"visible", [](const Form& form) { return Yes_No(form.visible); }},
    {"enabled", [](const Form& form) { return Yes_No(form.enabled); }},
    {"topmost", [](const Form& form) { return Yes_No(form.topmost); }},
    {"state",
     [](const Form& form) { return std::string(form.minimised ? "minimised" : "normal"); }},
    {"left", [](const Form& form) { return std::to_string(form.left); }},
    {"top", [](const Form& form) { return std::to_string(form.top); }},
    {"width",
     [](const Form& form) {
         return std::to_string(form.client_width + Frame_Width(*form.window));
     }},
    {"height",
     [](const Form& form) {
         return std::to_string(form.client_height + Frame_Height(*form.window));
     }},
    {"client_width", [](const Form& form) { return std::to_string(form.client_width); }},
    {"client_height", [](const Form& form) { return std::to_string(form.client_height); }},
};

template <typename Property, std::size_t Count>
const Property* Find_Property(const Property (&table)[Count], std::string_view name) {
    const auto* found = std::find_if(std::begin(table), std::end(table),
                                     [name](const Property& each) { return each.name == name; });
    return found == std::end(table) ? nullptr : found;
}

void Get_Of_Window(std::string_view owner, std::string_view name, Reply& reply) {
    const Form* form = Form_Named(owner, reply);
    if (form == nullptr) return;
    const Window_Property* property = Find_Property(window_properties, name);
    if (property == nullptr) return Fail(reply, "a window has no such property");
    Add_Line(reply, property->value(*form));
}

}  // namespace

void Get_Command(Arguments arguments, Reply& reply) {
    const std::size_t point = arguments[0].rfind('.');
    if (point == std::string_view::npos) return Fail(reply, "no property is named");
    const std::string_view owner = arguments[0].substr(0, point);
    const std::string_view name = arguments[0].substr(point + 1);
    if (owner.find('.') == std::string_view::npos) return Get_Of_Window(owner, name, reply);

    const Target target = Control_Named(owner, reply);
    if (!target) return;
    const Control_Property* property = Find_Property(control_properties, name);
    if (property == nullptr || (property->kinds & Of({target.Row().kind})) == 0) {
        return Fail(reply,
                    "a " + std::string(Kind_Name(target.Row().kind)) + " has no such property");
    }
    Add_Line(reply, property->value(target));
}

}  // namespace platform::headless
