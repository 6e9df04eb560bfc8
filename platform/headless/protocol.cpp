#include "platform/headless/protocol.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/code_page.h"
#include "platform/headless/program.h"

namespace platform::headless {

namespace {

bool quit = false;

constexpr Command quit_command = {"quit", 0, [](Arguments, Reply&) { quit = true; }, true};

std::vector<Command> All_Commands() {
    std::vector<Command> all = {quit_command};
    for (const auto& some : {Looking_Commands(), Doing_Commands(), Picture_Commands(),
                             Surroundings_Commands(), Printer_Commands()}) {
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

/// UTF-8 text with `\r`, `\n`, `\t` and `\\` for the characters that the wire parts things by.
std::string Escaped(std::string_view text) {
    constexpr std::string_view Characters = "\r\n\t\\", Letters = "rnt\\";
    std::string escaped;
    for (const char c : text) {
        const std::size_t place = Characters.find(c);
        if (place != std::string_view::npos) escaped += '\\';
        escaped += place == std::string_view::npos ? c : Letters[place];
    }
    return escaped;
}

void Fail_With_Name(Reply& reply, std::string_view reason, std::string_view name) {
    Fail(reply, std::string(reason).append(" ").append(name));
}

/// The words behind the verb, the last taking the rest of the line.
std::vector<std::string_view> Split(std::string_view line, std::size_t count) {
    std::vector<std::string_view> words = Words_Of(line);
    words.erase(words.begin());
    if (count > 0 && words.size() > count) {
        words.resize(count);
        words.back() = line.substr(static_cast<std::size_t>(words.back().data() - line.data()));
    }
    return words;
}

void Run_Line(std::string_view line, Reply& reply) {
    static const std::vector<Command> commands = All_Commands();
    const std::string_view verb = line.substr(0, line.find(' '));
    const auto command = std::find_if(commands.begin(), commands.end(),
                                      [verb](const Command& each) { return each.verb == verb; });
    if (command == commands.end()) return Fail(reply, "no such command");
    if (Is_Ending() && !command->after_the_end) return Fail(reply, "the program has ended");
    const auto arguments = Split(line, command->argument_count);
    if (arguments.size() != command->argument_count) {
        return Fail(reply, "wrong number of arguments");
    }
    command->run(arguments, reply);
}

}  // namespace

std::string Execute(std::string_view line) {
    quit = false;
    Reply reply;
    Run_Line(line, reply);
    return reply.failure.empty() ? reply.lines + "ok\n" : "error " + reply.failure + "\n";
}

bool Was_Quit() {
    return quit;
}

void Add_Line(Reply& reply, std::string_view text) {
    Add_Fields(reply, {text});
}

void Add_Fields(Reply& reply, std::initializer_list<std::string_view> texts) {
    std::string line;
    for (const auto* text = texts.begin(); text != texts.end(); ++text) {
        if (text != texts.begin()) line += '\t';
        line += Escaped(To_Utf8(*text));
    }
    // What would read as the end of the answer is told apart by one more backslash.
    if (line == "ok" || line.starts_with("error ")) reply.lines += '\\';
    reply.lines += line + '\n';
}

void Fail(Reply& reply, std::string_view reason) {
    reply.failure = Escaped(reason);
}

Form* Form_Named(std::string_view name, Reply& reply) {
    for (Live_Window* window : Loaded_Windows()) {
        if (window->table.name == name) return static_cast<Form*>(window);
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
            if (form->table.controls[i].name != name.substr(point + 1)) continue;
            Control_State& state = form->controls[i];
            if (state.row->kind == Control_Kind::Folder) state.entries = Subfolders(state.folder);
            return {form, i};
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
    const bool takes = form.visible && form.takes_input;
    if (!takes) Fail(reply, "disabled");
    return takes;
}

bool Takes_Input(const Target& target, Reply& reply) {
    bool takes = Takes_Input(*target.form, reply);
    for (std::size_t i = target.index; i != No_Container; i = target.form->controls[i].container)
        takes = takes && target.form->controls[i].enabled;
    if (!takes) Fail(reply, "disabled");
    return takes;
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

std::vector<std::string_view> Words_Of(std::string_view text) {
    std::vector<std::string_view> words;
    for (;;) {
        const std::size_t blank = text.find(' ');
        words.push_back(text.substr(0, blank));
        if (blank == std::string_view::npos) return words;
        text.remove_prefix(blank + 1);
    }
}

}  // namespace platform::headless
