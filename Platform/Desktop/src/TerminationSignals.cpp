#include "TerminationSignals.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <system_error>

namespace velmar {

namespace {

std::atomic<int> signalDescriptor = -1;

// Async-signal-safe: one write, errno restored.
void noteSignal(int /*number*/) {
    const int error = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const auto written = ::write(signalDescriptor.load(), &one, sizeof one);
    errno = error;
}

void handle(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> onSignal)
    : descriptor_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (descriptor_ < 0) {
        throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    signalDescriptor = descriptor_;
    notifier_ = std::make_unique<QSocketNotifier>(descriptor_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                     [descriptor = descriptor_, onSignal = std::move(onSignal)] {
                         std::uint64_t count = 0;
                         if (::read(descriptor, &count, sizeof count) > 0) {
                             onSignal();
                         }
                     });
    handle(&noteSignal);
}

TerminationSignals::~TerminationSignals() {
    // Ignored from now on, so that the process can finish writing its log.
    handle(SIG_IGN);
    notifier_.reset();
    signalDescriptor = -1;
    ::close(descriptor_);
}

bool TerminationSignals::isOnePending() const {
    pollfd pending{.fd = descriptor_, .events = POLLIN, .revents = 0};
    return ::poll(&pending, 1, 0) > 0;
}

} // namespace velmar
