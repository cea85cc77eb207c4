#include <Foundation/DescriptorWriting.h>

#include <cerrno>
#include <cstddef>

#include <poll.h>
#include <unistd.h>

namespace velmar {

int writeAll(int descriptor, std::string_view text) noexcept {
    while (!text.empty()) {
        const ssize_t written = write(descriptor, text.data(), text.size());
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EAGAIN) {
            pollfd ready{.fd = descriptor, .events = POLLOUT, .revents = 0};
            poll(&ready, 1, -1);
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

} // namespace velmar
