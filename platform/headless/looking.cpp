#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>
#include <iterator>

#include "platform/headless/device.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"

// The clock, and the looks at windows and controls.
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

std::string Value(bool value) {
    return value ? "yes" : "no";
}

std::string Value(int value) {
    return std::to_string(value);
}

std::string Value(double value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return std::string(digits.data(), end);
}

std::string Selected_Entry(const Control_State& state) {
    return state.selected < 0 ? std::string()
                              : state.entries[static_cast<std::size_t>(state.selected)];
}

std::string Text_Value(const Target& target) {
    const bool is_list = (Of({target.Row().kind}) & Listing & ~Of({Combo})) != 0;
    return is_list ? Selected_Entry(target.State()) : target.State().text;
}

std::string Number_Value(const Target& target) {
    const Control_State& state = target.State();
    return Value(target.Row().kind == Progress ? state.progress.value : int{state.checked});
}

std::string Font_Value(const Target& target) {
    const std::string name = target.Row().font.name;
    return name.empty() ? "MS Sans Serif" : name;
}

std::string Font_Size_Value(const Target& target) {
    const double size = target.Row().font.size;
    return Value(size > 0 ? size : 8.25);
}

std::string Enabled_Value(const Target& target) {
    return Value(target.Row().kind == Timer ? target.State().running : target.State().enabled);
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
    {"visible", Shown, [](const Target&) { return Value(true); }},
    {"left", Placed, [](const Target& t) { return Value(t.Row().at.left); }},
    {"top", Placed, [](const Target& t) { return Value(t.Row().at.top); }},
    {"width", Placed, [](const Target& t) { return Value(t.Row().at.width); }},
    {"height", Placed, [](const Target& t) { return Value(t.Row().at.height); }},
    {"value", Of({Check, Option, Progress}), Number_Value},
    {"min", Of({Progress}), [](const Target& t) { return Value(t.State().progress.minimum); }},
    {"max", Of({Progress}), [](const Target& t) { return Value(t.State().progress.maximum); }},
    {"index", Listing, [](const Target& t) { return Value(t.State().selected); }},
    {"count", Listing, [](const Target& t) { return Value(Entry_Count(t.Ref())); }},
    {"interval", Of({Timer}), [](const Target& t) { return Value(t.State().interval); }},
    {"read_only", Of({Text}), [](const Target&) { return Value(true); }},
    {"colour", Of({Label}), [](const Target& t) { return Colour_Text(t.Row().colour); }},
    {"transparent", Of({Label}), [](const Target& t) { return Value(t.State().transparent); }},
    {"bold", With_Font, [](const Target& t) { return Value(t.Row().font.bold); }},
    {"font", With_Font, Font_Value},
    {"font_size", With_Font, Font_Size_Value},
    {"path", Of({Folder}), [](const Target& t) { return t.State().folder; }},
    {"drive", Of({Drive}), [](const Target& t) { return Selected_Entry(t.State()); }},
};

struct Window_Property {
    std::string_view name;
    std::string (*value)(const Form& form);
};

constexpr Window_Property window_properties[] = {
    {"caption", [](const Form& f) { return f.caption; }},
    {"visible", [](const Form& f) { return Value(f.visible); }},
    {"enabled", [](const Form& f) { return Value(f.takes_input); }},
    {"topmost", [](const Form& f) { return Value(f.is_topmost); }},
    {"state", [](const Form& f) { return std::string(f.minimised ? "minimised" : "normal"); }},
    {"left", [](const Form& f) { return Value(f.left); }},
    {"top", [](const Form& f) { return Value(f.top); }},
    {"width", [](const Form& f) { return Value(f.Frame_Pixels().width); }},
    {"height", [](const Form& f) { return Value(f.Frame_Pixels().height); }},
    {"client_width", [](const Form& f) { return Value(f.client_width); }},
    {"client_height", [](const Form& f) { return Value(f.client_height); }},
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

void Get(Arguments arguments, Reply& reply) {
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

void Advance_Clock(Arguments arguments, Reply& reply) {
    // Long enough for any script, and far from the end of what the clock can count.
    constexpr long long Longest_Advance = 1'000'000'000'000;
    const auto milliseconds = Whole_Number(arguments[0], 0, Longest_Advance, reply);
    if (milliseconds) Advance(*milliseconds);
}

void Tell_Forms(Arguments, Reply& reply) {
    for (const Live_Window* window : Loaded_Windows())
        Add_Line(reply, window->table.name);
}

void Tell_Controls(Arguments arguments, Reply& reply) {
    const Form* form = Form_Named(arguments[0], reply);
    if (form == nullptr) return;
    for (const Control& control : form->table.controls)
        Add_Line(reply, std::string(control.name).append(" ").append(Kind_Name(control.kind)));
}

void Tell_Items(Arguments arguments, Reply& reply) {
    const Target target = Control_Named(arguments[0], reply);
    if (!target) return;
    if ((Of({target.Row().kind}) & Listing) == 0) {
        return Fail(reply, "this control has no entries");
    }
    for (const std::string& entry : target.State().entries)
        Add_Line(reply, entry);
}

constexpr Command commands[] = {
    {"advance", 1, Advance_Clock},
    {"clock", 0, [](Arguments, Reply& reply) { Add_Line(reply, std::to_string(Clock())); }},
    {"running", 0, [](Arguments, Reply& reply) { Add_Line(reply, Is_Ending() ? "no" : "yes"); },
     true},
    {"forms", 0, Tell_Forms},
    {"controls", 1, Tell_Controls},
    {"get", 1, Get},
    {"items", 1, Tell_Items},
};

}  // namespace

std::span<const Command> Looking_Commands() {
    return commands;
}

}  // namespace platform::headless
