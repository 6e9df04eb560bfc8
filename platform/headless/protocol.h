#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/form.h"

/// The line protocol (docs/headless.md): how a script drives the program and looks at it.
namespace platform::headless {

/// Carries out one command line (UTF-8, without its line feed) and gives the whole answer, its last
/// line `ok` or `error` with a reason, each line with its line feed. A command that fails changes
/// nothing.
std::string Execute(std::string_view line);

/// Whether the last command was `quit`.
bool Was_Quit();

/// The answer to a command while it is put together.
struct Reply {
    std::string lines;    ///< UTF-8, escaped, each with its line feed
    std::string failure;  ///< reason, empty if there is none
};

using Arguments = std::span<const std::string_view>;  // UTF-8

struct Command {
    std::string_view verb;
    std::size_t argument_count;  ///< the last one takes the rest of the line
    void (*run)(Arguments, Reply&);
    bool after_the_end = false;  ///< answers also when the program has ended
};

/// The commands by the files that carry them out.
std::span<const Command> Looking_Commands();
std::span<const Command> Doing_Commands();
std::span<const Command> Picture_Commands();
std::span<const Command> Surroundings_Commands();
std::span<const Command> Printer_Commands();

/// Adds a line of Windows-1252 text, or of several texts parted by tabs.
void Add_Line(Reply& reply, std::string_view text);
void Add_Fields(Reply& reply, std::initializer_list<std::string_view> texts);

/// Makes the answer an error. The reason is UTF-8.
void Fail(Reply& reply, std::string_view reason);

/// A control of a loaded window.
struct Target {
    Form* form = nullptr;  ///< null if there is none of that name
    std::size_t index = 0;

    explicit operator bool() const { return form != nullptr; }
    const Control& Row() const { return form->table.controls[index]; }
    Control_State& State() const { return form->controls[index]; }
    Control_Ref Ref() const { return {&form->table, index}; }
};

// What arguments name. Each makes the reply an error if it finds nothing.

Form* Form_Named(std::string_view name, Reply& reply);

/// By a name such as `Form3.Combo1`; of that kind alone if one is given.
Target Control_Named(std::string_view name, Reply& reply);
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

/// The words of a text, parted by one blank each; empty ones too.
std::vector<std::string_view> Words_Of(std::string_view text);

}  // namespace platform::headless
