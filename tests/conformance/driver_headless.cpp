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

void Double_Click(Control_Ref list) {
    Do("double_click", Name(list));
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
    const char* const verbs[] = {"minimise", "restore", "close"};
    Do(verbs[deed], window.name);
}

void Key(int code, bool down) {
    Do("key", std::to_string(code) + (down ? " down" : " up"));
}

std::vector<Message> Take_Messages() {
    std::vector<Message> messages;
    for (const auto& shown : headless::Take_Messages())
        messages.push_back({shown.icon, shown.title, shown.text, false});
    return messages;
}

}  // namespace driver
