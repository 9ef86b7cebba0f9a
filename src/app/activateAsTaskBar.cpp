#include "activateAsTaskBar.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace app {

namespace {

constexpr std::string_view activeWindow = "_NET_ACTIVE_WINDOW";

// A window manager keeps back a window that wants the focus while the person works in another one. It obeys a task bar,
// because there a person asked for the window; so did the one who started the program again.
void askWindowManager(xcb_connection_t* display, WId window)
{
    const xcb_intern_atom_cookie_t asked =
        xcb_intern_atom(display, 1, static_cast<uint16_t>(activeWindow.size()), activeWindow.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> name(
        xcb_intern_atom_reply(display, asked, nullptr), &std::free);
    if (!name)
        return;
    constexpr uint32_t taskBar = 2;
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = static_cast<xcb_window_t>(window);
    message.type = name->atom;
    message.data.data32[0] = taskBar;
    message.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(display, 0, xcb_setup_roots_iterator(xcb_get_setup(display)).data->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(display);
}

} // namespace

bool activateAsTaskBar(const QWidget& window)
{
    const auto* display = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (display)
        askWindowManager(display->connection(), window.winId());
    return display != nullptr;
}

} // namespace app
