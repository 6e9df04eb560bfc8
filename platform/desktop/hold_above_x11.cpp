#include <QGuiApplication>
#include <QWindow>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <xcb/xcb.h>

#include "platform/desktop/hold_above.h"

namespace platform::desktop {

namespace {

/// Values of the window manager protocol's _NET_WM_STATE message.
constexpr std::uint32_t Add_State = 1;
constexpr std::uint32_t From_Application = 1;

xcb_atom_t Atom(xcb_connection_t* connection, const char* name) {
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    xcb_intern_atom_reply_t* reply =
        xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, length, name), nullptr);
    const xcb_atom_t atom = reply != nullptr ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    std::free(reply);
    return atom;
}

}  // namespace

void Hold_Above(const QWindow& window) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr) return;
    xcb_connection_t* connection = x11->connection();
    if (connection == nullptr) return;  // the toolkit shows its windows elsewhere
    static const xcb_atom_t state = Atom(connection, "_NET_WM_STATE");
    static const xcb_atom_t above = Atom(connection, "_NET_WM_STATE_ABOVE");

    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window.winId());
    message.type = state;
    message.data.data32[0] = Add_State;
    message.data.data32[1] = above;
    message.data.data32[3] = From_Application;
    char event[32] = {};
    std::memcpy(event, &message, sizeof message);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    xcb_send_event(connection, 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   event);
    xcb_flush(connection);
}

}  // namespace platform::desktop
