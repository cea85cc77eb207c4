#include "WindowManagerHints.h"

#include <QGuiApplication>
#include <QWindow>

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace velmar {

namespace {

// Layout and bits are those of the Motif window manager, which others adopted.
constexpr std::uint32_t functionsAreSet = 1U << 0U;
constexpr std::uint32_t decorationsAreSet = 1U << 1U;
constexpr std::uint32_t functionResize = 1U << 1U;
constexpr std::uint32_t functionMove = 1U << 2U;
constexpr std::uint32_t functionClose = 1U << 5U;
constexpr std::uint32_t decorationBorder = 1U << 1U;
constexpr std::uint32_t decorationResizeHandle = 1U << 2U;
constexpr std::uint32_t decorationTitle = 1U << 3U;
constexpr std::uint32_t decorationMenu = 1U << 4U;

} // namespace

xcb_connection_t *connectionOfWindowSystem() {
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Other platforms may provide the interface without a connection.
    return x11 == nullptr ? nullptr : x11->connection();
}

std::uint32_t atomOfWindowSystem(std::string_view name) {
    xcb_connection_t *connection = connectionOfWindowSystem();
    if (connection == nullptr) {
        return XCB_ATOM_NONE;
    }
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::uint32_t ownerOfSelection(std::string_view name) {
    xcb_connection_t *connection = connectionOfWindowSystem();
    if (connection == nullptr) {
        return XCB_WINDOW_NONE;
    }
    const auto cookie = xcb_get_selection_owner(connection, atomOfWindowSystem(name));
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> reply(
        xcb_get_selection_owner_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

bool windowsAreComposited() {
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland")) ||
           ownerOfSelection("_NET_WM_CM_S0") != XCB_WINDOW_NONE;
}

void setWindowManagerFunctions(QWindow &window, WindowFunctions functions) {
    xcb_connection_t *connection = connectionOfWindowSystem();
    if (connection == nullptr) {
        return;
    }
    const xcb_atom_t hints = atomOfWindowSystem("_MOTIF_WM_HINTS");
    const std::array<std::uint32_t, 5> value{
        functionsAreSet | decorationsAreSet,
        (functions.resize ? functionResize : 0) | (functions.move ? functionMove : 0) |
            (functions.close ? functionClose : 0),
        decorationBorder | decorationTitle | decorationMenu | (functions.resize ? decorationResizeHandle : 0),
        0, 0};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()), hints,
                        hints, 32, static_cast<std::uint32_t>(value.size()), value.data());
}

void setOnEveryWorkspace(QWindow &window) {
    xcb_connection_t *connection = connectionOfWindowSystem();
    if (connection == nullptr) {
        return;
    }
    constexpr std::uint32_t every = 0xFFFFFFFF;
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                        atomOfWindowSystem("_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, 32, 1, &every);
}

} // namespace velmar
