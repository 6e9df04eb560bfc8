#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

#include "platform/headless/commands.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"

namespace platform::headless {

namespace {

constexpr std::size_t Most_Arguments = 4;

struct Command {
    std::string_view verb;
    std::size_t argument_count;
    void (*run)(Arguments, Reply&);
    bool after_the_end = false;  ///< answers also when the program has ended
};

bool quit = false;

void Quit_Command(Arguments, Reply&) {
    quit = true;
}

constexpr Command commands[] = {
    {"advance", 1, Advance_Command},
    {"clock", 0, Clock_Command},
    {"running", 0, Running_Command, true},
    {"quit", 0, Quit_Command, true},

    {"forms", 0, Forms_Command},
    {"controls", 1, Controls_Command},
    {"get", 1, Get_Command},
    {"items", 1, Items_Command},
    {"messages", 0, Messages_Command, true},

    {"click", 1, Click_Command},
    {"double_click", 1, Double_Click_Command},
    {"pick", 2, Pick_Command},
    {"type", 2, Type_Command},
    {"folder", 2, Folder_Command},
    {"drive", 2, Drive_Command},
    {"mouse", 4, Mouse_Command},
    {"resize", 3, Resize_Command},
    {"minimise", 1, Minimise_Command},
    {"restore", 1, Restore_Command},
    {"close", 1, Close_Command},
    {"untop", 1, Untop_Command},
    {"key", 2, Key_Command},

    {"picture", 1, Picture_Command},
    {"pages", 0, Pages_Command, true},
    {"page", 1, Page_Command, true},
    {"svg", 2, Svg_Command},

    {"printer", 1, Printer_Command},
    {"drives", 1, Drives_Command},
    {"simulator", 1, Simulator_Command},
};

/// Takes a word and the blank behind it off the front of the line; false at its end.
bool Take_Word(std::string_view& line, std::string_view& word) {
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos) return false;
    word = line.substr(0, blank);
    line.remove_prefix(blank + 1);
    return true;
}

/// Parts the line behind the verb, the last argument taking the rest; false if there are too few.
bool Split(std::string_view rest, std::span<std::string_view> arguments) {
    for (std::size_t i = 0; i + 1 < arguments.size(); ++i) {
        if (!Take_Word(rest, arguments[i])) return false;
    }
    arguments.back() = rest;
    return true;
}

void Run_Line(std::string_view line, Reply& reply) {
    std::string_view rest = line;
    std::string_view verb;
    const bool has_rest = Take_Word(rest, verb);
    if (!has_rest) verb = line;
    const auto* command = std::find_if(std::begin(commands), std::end(commands),
                                       [verb](const Command& each) { return each.verb == verb; });
    if (command == std::end(commands)) return Fail(reply, "no such command");
    if (Is_Over() && !command->after_the_end) return Fail(reply, "the program has ended");

    std::array<std::string_view, Most_Arguments> words;
    const auto arguments = std::span(words).first(command->argument_count);
    if (has_rest != (command->argument_count > 0) || (has_rest && !Split(rest, arguments))) {
        return Fail(reply, "wrong number of arguments");
    }
    command->run(arguments, reply);
    Settle();
}

}  // namespace

std::string Execute(std::string_view line) {
    quit = false;
    Reply reply;
    Run_Line(line, reply);
    return Finished(reply);
}

bool Was_Quit() {
    return quit;
}

}  // namespace platform::headless
