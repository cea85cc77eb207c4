#include "WindowList.h"

#include "WindowManagerHints.h"

#include <xcb/xcb.h>

#include <array>
#include <cstdlib>
#include <memory>

namespace velmar::WindowList {

namespace {

constexpr std::uint32_t longest = 16 * 1024; // 32-bit words of a property
constexpr std::uint32_t fromTheUser = 2;     // window managers follow requests of the user, not of programs

xcb_window_t rootOf(xcb_connection_t *connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

using Reply = std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)>;

/// Returns null if the property or the window doesn't exist.
Reply property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) {
    xcb_connection_t *connection = connectionOfWindowSystem();
    const auto cookie = xcb_get_property(connection, 0, window, name, type, 0, longest);
    xcb_generic_error_t *error = nullptr;
    Reply reply(xcb_get_property_reply(connection, cookie, &error), &std::free);
    std::free(error);
    return reply;
}

std::vector<std::uint32_t> windows(std::string_view name) {
    xcb_connection_t *connection = connectionOfWindowSystem();
    if (connection == nullptr) {
        return {};
    }
    const Reply reply = property(rootOf(connection), atomOfWindowSystem(name), XCB_ATOM_WINDOW);
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto *first = static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
    return {first, first + xcb_get_property_value_length(reply.get()) / 4};
}

void ask(xcb_window_t window, std::string_view request, std::array<std::uint32_t, 4> values) {
    xcb_connection_t *connection = connectionOfWindowSystem();
    if (connection == nullptr) {
        return;
    }
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atomOfWindowSystem(request);
    std::copy(values.begin(), values.end(), event.data.data32);
    xcb_send_event(connection, 0, rootOf(connection),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&event));
    xcb_flush(connection);
}

} // namespace

std::vector<std::uint32_t> fromTheLowest() {
    return windows("_NET_CLIENT_LIST_STACKING");
}

std::uint32_t active() {
    const std::vector<std::uint32_t> found = windows("_NET_ACTIVE_WINDOW");
    return found.empty() ? 0 : found.front();
}

std::string applicationOf(std::uint32_t window) {
    if (connectionOfWindowSystem() == nullptr) {
        return {};
    }
    const Reply reply = property(window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING);
    if (!reply) {
        return {};
    }
    return {static_cast<const char *>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

void activate(std::uint32_t window) {
    ask(window, "_NET_ACTIVE_WINDOW", {fromTheUser, XCB_CURRENT_TIME, 0, 0});
}

void lift(std::uint32_t window) {
    constexpr std::uint32_t add = 1;
    ask(window, "_NET_WM_STATE", {add, atomOfWindowSystem("_NET_WM_STATE_ABOVE"), 0, fromTheUser});
    activate(window);
}

} // namespace velmar::WindowList
