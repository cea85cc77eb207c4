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
// An address of no known kind: libraries of D-Bus give up on it at once, and look for no other.
constexpr const char *noBus = "disabled:";
// A bus may be started by the first connection, while the login keeps the machine busy.
constexpr std::chrono::seconds patienceAtLaunch(3);

QByteArray busAddress() {
    const QByteArray address = qgetenv(addressVariable);
    return address.isEmpty() ? "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus" : address;
}

/// The name of the socket, with a leading zero in place of the path for an abstract one; empty where the
/// address is of another kind.
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

/// Tries until the end while the queue of the socket is full. Zero, or an errno.
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

/// Any answer is one, and so is a refusal.
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
    // Who connects takes the first address at which there is a socket.
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
