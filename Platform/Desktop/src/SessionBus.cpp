#include <Desktop/SessionBus.h>

#include <Foundation/LaunchEnvironment.h>

#include <QByteArray>
#include <QFileInfo>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <thread>

namespace velmar {

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char *addressVariable = "DBUS_SESSION_BUS_ADDRESS";
// An unknown transport: D-Bus libraries fail at once and don't search for another bus.
constexpr const char *noBus = "disabled:";
// The first connection may start a bus, while the login keeps the machine busy.
constexpr std::chrono::seconds patienceAtLaunch(3);

QByteArray busAddress() {
    const QByteArray address = qgetenv(addressVariable);
    return address.isEmpty() ? "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus" : address;
}

/// Returns the name of the socket, with a leading NUL for an abstract one; empty for another transport.
QByteArray socketName(const QByteArray &address) {
    if (!address.startsWith("unix:")) {
        return {};
    }
    for (const QByteArray &part : address.mid(5).split(',')) {
        if (part.startsWith("path=")) {
            return QByteArray::fromPercentEncoding(part.mid(5));
        }
        if (part.startsWith("abstract=")) {
            return '\0' + QByteArray::fromPercentEncoding(part.mid(9));
        }
    }
    return {};
}

int timeLeft(Clock::time_point end) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

/// Connects, retrying until `end` while the socket's queue is full. Returns 0 or an errno.
int connectTo(const QByteArray &name, int descriptor, Clock::time_point end) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path)) + socklen_t(name.size());
    while (::connect(descriptor, reinterpret_cast<const sockaddr *>(&address), length) != 0) {
        if (errno != EAGAIN || timeLeft(end) == 0) {
            return errno;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return 0;
}

/// Returns true if the bus reacts in any way, even by refusing.
bool answers(int descriptor, Clock::time_point end) {
    const QByteArray greeting =
        QByteArray("\0AUTH EXTERNAL ", 15) + QByteArray::number(::getuid()).toHex() + "\r\n";
    if (::send(descriptor, greeting.constData(), static_cast<std::size_t>(greeting.size()), MSG_NOSIGNAL) <
        0) {
        return true;
    }
    pollfd answer{.fd = descriptor, .events = POLLIN, .revents = 0};
    int count = 0;
    do {
        count = ::poll(&answer, 1, timeLeft(end));
    } while (count < 0 && errno == EINTR);
    return count != 0;
}

enum class Bus { unreachable, talking, silent };

Bus busAt(const QByteArray &name, std::chrono::milliseconds patience) {
    const int descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (descriptor < 0) {
        return Bus::unreachable;
    }
    const auto end = Clock::now() + patience;
    const int error = connectTo(name, descriptor, end);
    const bool isSilent = error == EAGAIN || (error == 0 && !answers(descriptor, end));
    ::close(descriptor);
    return isSilent ? Bus::silent : error == 0 ? Bus::talking : Bus::unreachable;
}

} // namespace

bool hasSessionBus() {
    const QByteArray address = qgetenv(addressVariable);
    return address.isEmpty()
               ? QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"))
               : address != noBus;
}

bool isSessionBusSilent(std::chrono::milliseconds patience) {
    if (!hasSessionBus()) {
        return false;
    }
    // Clients use the first address that accepts a connection.
    for (const QByteArray &address : busAddress().split(';')) {
        const QByteArray name = socketName(address);
        if (name.isEmpty() || static_cast<std::size_t>(name.size()) >= sizeof sockaddr_un::sun_path) {
            return false;
        }
        if (const Bus bus = busAt(name, patience); bus != Bus::unreachable) {
            return bus == Bus::silent;
        }
    }
    return false;
}

std::optional<std::string> leaveSilentSessionBus() {
    if (!isSessionBusSilent(patienceAtLaunch)) {
        return std::nullopt;
    }
    const std::string address = busAddress().toStdString();
    LaunchEnvironment::keep();
    qputenv(addressVariable, noBus);
    return "The session bus at '" + address +
           "' does not answer: notifications, a status item, the desktop's light or dark appearance and "
           "screen readers are not available";
}

} // namespace velmar
