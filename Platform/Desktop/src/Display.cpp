#include <Desktop/Display.h>

#include <xcb/xcb.h>

#include <QFileInfo>
#include <QLibraryInfo>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string_view>

namespace velmar {

namespace {

std::string environment(const char *name) {
    const char *value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): before any thread
    return value == nullptr ? std::string() : std::string(value);
}

std::string chosenPlatform(std::span<const std::string> arguments) {
    for (std::size_t index = 0; index + 1 < arguments.size(); ++index) {
        if (arguments[index] == "-platform" || arguments[index] == "--platform") {
            return arguments[index + 1];
        }
    }
    return environment("QT_QPA_PLATFORM");
}

bool xServerAnswers() {
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection(
        xcb_connect(nullptr, nullptr), &xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0;
}

bool compositorAnswers() {
    const std::string display = environment("WAYLAND_DISPLAY");
    const std::string directory = environment("XDG_RUNTIME_DIR");
    const bool hasPlugin = QFileInfo::exists(QLibraryInfo::path(QLibraryInfo::PluginsPath) +
                                             "/platforms/libqwayland-generic.so");
    const std::string path = display.starts_with('/') ? display : directory + "/" + display;
    sockaddr_un address{};
    if (display.empty() || !hasPlugin || path.size() >= sizeof address.sun_path) {
        return false;
    }
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.data(), path.size());
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answers =
        ::connect(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(descriptor);
    return answers;
}

} // namespace

std::optional<std::string> displayProblem(std::span<const std::string> arguments) {
    const std::string platform = chosenPlatform(arguments);
    const bool needsDisplay =
        platform.empty() || platform.starts_with("xcb") || platform.starts_with("wayland");
    if (!needsDisplay) {
        return std::nullopt;
    }
    const bool isForced = !platform.empty();
    const bool mayUseX = !isForced || platform.find("xcb") != std::string::npos;
    const bool mayUseWayland = !isForced || platform.find("wayland") != std::string::npos;
    if ((mayUseX && xServerAnswers()) || (mayUseWayland && compositorAnswers())) {
        return std::nullopt;
    }
    const std::string display = environment("DISPLAY");
    return display.empty() ? "There is no display to show a window on: DISPLAY is not set."
                           : "There is no display to show a window on: '" + display + "' does not answer.";
}

} // namespace velmar
