#include "FileDescriptor.h"

#include <cerrno>
#include <system_error>

#include <poll.h>

namespace velmar {

void writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(descriptor, text.data(), text.size());
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN) {
            pollfd ready{.fd = descriptor, .events = POLLOUT, .revents = 0};
            poll(&ready, 1, -1);
        } else if (errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "write");
        }
    }
}

} // namespace velmar
