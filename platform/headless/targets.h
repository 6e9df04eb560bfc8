#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>

#include "platform/headless/form.h"
#include "platform/headless/reply.h"

/// What the arguments of commands name. Each operation makes the reply an error if it finds
/// nothing.
namespace platform::headless {

/// A control of a loaded window.
struct Target {
    Form* form = nullptr;  ///< null if there is none of that name
    std::size_t index = 0;

    explicit operator bool() const { return form != nullptr; }
    const Control& Row() const { return form->window->controls[index]; }
    Control_State& State() const { return form->controls[index]; }
    Control_Ref Ref() const { return {form->window, index}; }
};

/// Null if no window of that name is loaded.
Form* Form_Named(std::string_view name, Reply& reply);

/// By a name such as `Form3.Combo1`.
Target Control_Named(std::string_view name, Reply& reply);

/// The same, of that kind alone.
Target Control_Named(std::string_view name, Control_Kind kind, Reply& reply);

/// Whether the user can reach it: its window shown, and neither it nor what holds it disabled.
bool Takes_Input(const Form& form, Reply& reply);
bool Takes_Input(const Target& target, Reply& reply);

/// The control's kind as the protocol names it.
std::string_view Kind_Name(Control_Kind kind);

/// UTF-8 to the program's text.
std::optional<std::string> Program_Text(std::string_view utf8, Reply& reply);

/// A whole decimal number from `least` to `most`.
std::optional<long long> Whole_Number(std::string_view text, long long least, long long most,
                                      Reply& reply);

}  // namespace platform::headless
