#include "platform/desktop/keys.h"

#include <QCoreApplication>
#include <QPointer>
#include <array>
#include <unordered_map>

#include "platform/desktop/focus_keys.h"
#include "platform/keys.h"

namespace platform {

namespace {

/// One virtual-key code. Several keys may share it: the two of a pair, two Enter keys.
struct Code_State {
    int keys_down = 0;
    bool was_pressed = false;
};

struct Keyboard {
    std::array<Code_State, Last_Key_Code + 1> codes;
    /// The keys that are down, with their codes of when they went down.
    std::unordered_map<desktop::Key_Id, desktop::Key_Codes> down;
};

Keyboard keyboard;
QPointer<QObject> watcher;

Code_State& State_Of_Code(int code) {
    return keyboard.codes.at(static_cast<std::size_t>(code));
}

}  // namespace

void desktop::Find_Key_Down(Key_Id key, Key_Codes codes) {
    if (!keyboard.down.emplace(key, codes).second) return;
    for (const int code : {codes.own, codes.common}) {
        if (code != 0) ++State_Of_Code(code).keys_down;
    }
}

void desktop::Press_Key(Key_Id key, Key_Codes codes) {
    if (keyboard.down.contains(key)) return;
    Find_Key_Down(key, codes);
    for (const int code : {codes.own, codes.common}) {
        if (code != 0) State_Of_Code(code).was_pressed = true;
    }
}

void desktop::Release_Key(Key_Id key) {
    const auto found = keyboard.down.find(key);
    if (found == keyboard.down.end()) return;
    for (const int code : {found->second.own, found->second.common}) {
        if (code != 0) --State_Of_Code(code).keys_down;
    }
    keyboard.down.erase(found);
}

void desktop::Release_All_Keys() {
    keyboard.down.clear();
    for (Code_State& state : keyboard.codes)
        state.keys_down = 0;
}

void desktop::Watch_Keys() {
    delete watcher;
    keyboard = {};
    watcher = Watch_Server_Keys();
    if (watcher == nullptr) watcher = Watch_Focus_Keys();
    watcher->setParent(QCoreApplication::instance());
    QObject::connect(watcher, &QObject::destroyed, [] { keyboard = {}; });
}

std::uint16_t GetAsyncKeyState(int code) {
    if (code < First_Key_Code || code > Last_Key_Code) return 0;
    Code_State& state = State_Of_Code(code);
    unsigned result = 0;
    if (state.keys_down > 0) result |= Key_Down;
    if (state.was_pressed) result |= Key_Was_Pressed;
    state.was_pressed = false;
    return static_cast<std::uint16_t>(result);
}

}  // namespace platform
