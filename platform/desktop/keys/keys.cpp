#include "platform/desktop/keys/keys.h"

#include <QGuiApplication>
#include <QPointer>
#include <QSocketNotifier>
#include <array>
#include <cstdlib>
#include <memory>
#include <unordered_map>
#include <xcb/xcb.h>
#include <xcb/xinput.h>

#include "platform/keys.h"

// Raw key events of the X input extension come whoever has the focus and whoever grabs the keyboard
// (since its version 2.1), and nothing comes while no key moves. The connection is the keyboard's
// own, since the toolkit selects events of the extension for itself on the other.
namespace platform {

namespace desktop {

namespace {

/// One virtual-key code. Several keys may share it: the two of a pair, two Enter keys.
struct Code_State {
    int keys_down = 0;
    bool was_pressed = false;
};

struct Keyboard {
    std::array<Code_State, Last_Key_Code + 1> codes;
    /// The keys that are down, with their codes of when they went down.
    std::unordered_map<Key_Id, Key_Codes> down;
};

Keyboard keyboard;
QPointer<QObject> watcher;

Code_State& State_Of_Code(int code) {
    return keyboard.codes.at(static_cast<std::size_t>(code));
}

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

template <typename Type>
using Owned = std::unique_ptr<Type, Free>;

/// The codes of the keys by their keycodes, which an X server numbers from 8 to 255.
using Codes_By_Keycode = std::array<Key_Codes, 256>;

/// Leaves the codes as they are if the server gives no answer.
void Read_Mapping(xcb_connection_t* connection, Codes_By_Keycode& codes) {
    const xcb_setup_t* setup = xcb_get_setup(connection);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const Owned<xcb_get_keyboard_mapping_reply_t> reply(xcb_get_keyboard_mapping_reply(
        connection, xcb_get_keyboard_mapping(connection, setup->min_keycode, count), nullptr));
    if (reply == nullptr) return;
    const std::span<const xcb_keysym_t> keysyms(
        xcb_get_keyboard_mapping_keysyms(reply.get()),
        static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(reply.get())));
    const std::size_t width = reply->keysyms_per_keycode;
    codes = {};
    for (std::size_t key = 0; (key + 1) * width <= keysyms.size() && key < count; ++key) {
        const std::size_t keycode = setup->min_keycode + key;
        codes[keycode] = Codes_Of(keysyms.subspan(key * width, width));
        if (codes[keycode] == Key_Codes()) {
            codes[keycode] = Codes_Of_Place(static_cast<std::uint32_t>(keycode));
        }
    }
}

/// Asks for the raw key events of all keyboards; false if the server has none to give.
bool Select_Keys(xcb_connection_t* connection) {
    const xcb_query_extension_reply_t* extension =
        xcb_get_extension_data(connection, &xcb_input_id);
    if (extension == nullptr || extension->present == 0) return false;
    const Owned<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
    if (version == nullptr || version->major_version < 2) return false;

    struct {
        xcb_input_event_mask_t head = {XCB_INPUT_DEVICE_ALL_MASTER, 1};
        std::uint32_t events =
            XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE;
    } const mask;
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const Owned<xcb_generic_error_t> error(xcb_request_check(
        connection, xcb_input_xi_select_events_checked(connection, root, 1, &mask.head)));
    return error == nullptr && xcb_connection_has_error(connection) == 0;
}

class Server_Keys final : public QObject {
  public:
    explicit Server_Keys(xcb_connection_t* connection_)
        : connection(connection_),
          notifier(xcb_get_file_descriptor(connection_), QSocketNotifier::Read),
          extension(xcb_get_extension_data(connection_, &xcb_input_id)->major_opcode) {
        Read_Mapping(connection, codes);
        Find_Held_Keys();
        // The answers may have brought events along that the notifier would not tell of.
        Take_Events();
        connect(&notifier, &QSocketNotifier::activated, this, [this] { Take_Events(); });
    }

    ~Server_Keys() override {
        notifier.setEnabled(false);
        xcb_disconnect(connection);
    }

    Server_Keys(const Server_Keys&) = delete;
    Server_Keys& operator=(const Server_Keys&) = delete;

  private:
    void Find_Held_Keys() {
        const Owned<xcb_query_keymap_reply_t> reply(
            xcb_query_keymap_reply(connection, xcb_query_keymap(connection), nullptr));
        if (reply == nullptr) return;
        for (std::size_t key = 0; key < codes.size(); ++key) {
            const unsigned bits = reply->keys[key / 8];
            if ((bits >> (key % 8) & 1) != 0) Find_Key_Down(static_cast<Key_Id>(key), codes[key]);
        }
    }

    void Take_Events() {
        for (;;) {
            const Owned<xcb_generic_event_t> event(xcb_poll_for_event(connection));
            if (event == nullptr) break;
            Take(*event);
        }
        if (xcb_connection_has_error(connection) == 0) return;
        // Nothing comes any more, and a key that is down would stay so.
        notifier.setEnabled(false);
        keyboard = {};
    }

    void Take(const xcb_generic_event_t& event) {
        const void* const bytes = &event;
        const int type = event.response_type & 0x7f;
        if (type == XCB_MAPPING_NOTIFY) {
            const auto& news = *static_cast<const xcb_mapping_notify_event_t*>(bytes);
            if (news.request == XCB_MAPPING_KEYBOARD) mapping_is_old = true;
        } else if (type == XCB_GE_GENERIC) {
            const auto& key = *static_cast<const xcb_input_raw_key_press_event_t*>(bytes);
            if (key.extension != extension) return;
            if (key.event_type == XCB_INPUT_RAW_KEY_PRESS) Press(key.detail);
            if (key.event_type == XCB_INPUT_RAW_KEY_RELEASE) Release_Key(key.detail);
        }
    }

    void Press(Key_Id keycode) {
        // A change of the layout brings a row of such events, and is read once when it matters.
        if (mapping_is_old) Read_Mapping(connection, codes);
        mapping_is_old = false;
        if (keycode < codes.size()) Press_Key(keycode, codes[keycode]);
    }

    xcb_connection_t* connection;
    QSocketNotifier notifier;
    std::uint8_t extension;  ///< its number at this server
    Codes_By_Keycode codes = {};
    bool mapping_is_old = false;
};

/// Null if there is no X server or it cannot tell of keys.
QObject* New_Watcher() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || x11->connection() == nullptr) return nullptr;
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) == 0 && Select_Keys(connection)) {
        return new Server_Keys(connection);
    }
    xcb_disconnect(connection);
    return nullptr;
}

}  // namespace

void Find_Key_Down(Key_Id key, Key_Codes codes) {
    if (!keyboard.down.emplace(key, codes).second) return;
    for (const int code : {codes.own, codes.common}) {
        if (code != 0) ++State_Of_Code(code).keys_down;
    }
}

void Press_Key(Key_Id key, Key_Codes codes) {
    if (keyboard.down.contains(key)) return;
    Find_Key_Down(key, codes);
    for (const int code : {codes.own, codes.common}) {
        if (code != 0) State_Of_Code(code).was_pressed = true;
    }
}

void Release_Key(Key_Id key) {
    const auto found = keyboard.down.find(key);
    if (found == keyboard.down.end()) return;
    for (const int code : {found->second.own, found->second.common}) {
        if (code != 0) --State_Of_Code(code).keys_down;
    }
    keyboard.down.erase(found);
}

void Watch_Keys() {
    delete watcher;
    keyboard = {};
    watcher = New_Watcher();
    if (watcher != nullptr) watcher->setParent(qGuiApp);
}

}  // namespace desktop

std::uint16_t GetAsyncKeyState(int code) {
    if (code < First_Key_Code || code > Last_Key_Code) return 0;
    desktop::Code_State& state = desktop::State_Of_Code(code);
    unsigned result = 0;
    if (state.keys_down > 0) result |= Key_Down;
    if (state.was_pressed) result |= Key_Was_Pressed;
    state.was_pressed = false;
    return static_cast<std::uint16_t>(result);
}

}  // namespace platform
