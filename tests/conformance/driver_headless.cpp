#include <algorithm>
#include <filesystem>

#include "platform/code_page.h"
#include "platform/headless/form.h"
#include "platform/headless/program.h"
#include "platform/headless/protocol.h"
#include "tests/conformance/driver.h"

namespace driver {

const bool has_screen = false;

namespace {

using namespace platform;

std::string Name(Control_Ref control) {
    return std::string(control.window->name) + "." + control.window->controls[control.index].name;
}

void Do(const std::string& verb, const std::string& arguments) {
    headless::Execute(verb + " " + arguments);
}

}  // namespace

void Start(Handler start) {
    headless::Begin(start);
}

void Advance(int milliseconds) {
    headless::Advance(milliseconds);
}

void Set_Surroundings(const std::string& command) {
    headless::Execute(command);
}

void Click(Control_Ref control) {
    Do("click", Name(control));
}

void Double_Click(Control_Ref list, Spot) {
    Do("double_click", Name(list));
}

void Enter_Folder(Control_Ref folder_list, int index) {
    const std::filesystem::directory_iterator names(Folder_Path(folder_list));
    Do("folder", Name(folder_list) + " " + std::next(names, index)->path().string());
}

void Pick(Control_Ref list_or_combo, int index) {
    Do("pick", Name(list_or_combo) + " " + std::to_string(index));
}

void Type(Control_Ref combo, const std::string& text) {
    Do("type", Name(combo) + " " + To_Utf8(text));
}

void Press(const Window& window, Mouse_Button button, int x, int y) {
    const char* const names[] = {" left ", " right ", " middle "};
    Do("mouse", window.name + std::string(names[static_cast<int>(button)]) + std::to_string(x) +
                    " " + std::to_string(y));
}

void Resize(const Window& window, int client_width, int client_height) {
    if (window.frame != Frame_Style::Sizable) return;
    Do("resize", std::string(window.name) + " " +
                     std::to_string(client_width + headless::Frame_Width(window)) + " " +
                     std::to_string(client_height + headless::Frame_Height(window)));
}

void Do(Deed deed, const Window& window) {
    const char* const verbs[] = {"minimise", "", "restore", "close"};
    Do(verbs[deed], window.name);
}

void Key(int code, bool down) {
    Do("key", std::to_string(code) + (down ? " down" : " up"));
}

void Press_Key(const Window&, Stroke) {}

void Type_Keys(const Window&, const std::string&) {}

std::string Focus(const Window&) {
    return {};
}

Frame Frame_Of(const Window& window) {
    const headless::Form* form = headless::Find_Form(window);
    return {form->left, form->top, form->is_topmost};
}

std::vector<Message> Take_Messages() {
    std::vector<Message> messages;
    for (const auto& shown : headless::Take_Messages())
        messages.push_back({shown.icon, shown.title, shown.text, false});
    return messages;
}

// Of the shapes only lines, and those along the axes, are seen here; the others are looked at as
// calls.
Colour Pixel(const Window& window, int x, int y) {
    Colour colour = window.back_colour;
    const headless::Picture& picture = Window_Device(window)->picture;
    for (const auto& [kind, state, ends] : picture.calls) {
        const int half = picture.states[state].pen_width / 2;
        const auto [left, right] = std::minmax(ends[0], ends[2]);
        const auto [top, bottom] = std::minmax(ends[1], ends[3]);
        if (kind == headless::Call_Kind::Line && left - half <= x && x <= right + half &&
            top - half <= y && y <= bottom + half) {
            colour = picture.states[state].pen_colour;
        }
    }
    for (std::size_t i = 0; i < window.controls.size(); ++i) {
        const auto* label = common::Find_Live({&window, i}, Control_Kind::Label);
        const auto& [left, top, width, height] = window.controls[i].at;
        if (label != nullptr && !label->transparent && x * 15 >= left && x * 15 < left + width &&
            y * 15 >= top && y * 15 < top + height) {
            colour = {};
        }
    }
    return colour;
}

}  // namespace driver
