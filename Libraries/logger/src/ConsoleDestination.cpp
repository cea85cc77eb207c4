#include <logger/ConsoleDestination.h>

#include <csignal>
#include <cstring>
#include <ctime>

#include <pthread.h>

#include <Foundation/DescriptorWriting.h>

namespace velmar {

namespace {

// Blocks SIGPIPE for this thread, which a closed pipe raises and which would end the process. Discards the
// signal unless it was pending before.
class PipeSignalHeldBack {
public:
    PipeSignalHeldBack() {
        sigset_t pending;
        sigpending(&pending);
        wasPending_ = sigismember(&pending, SIGPIPE) == 1;
        sigemptyset(&pipe_);
        sigaddset(&pipe_, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &pipe_, &previous_);
    }
    ~PipeSignalHeldBack() {
        if (!wasPending_) {
            const timespec atOnce{};
            sigtimedwait(&pipe_, nullptr, &atOnce);
        }
        pthread_sigmask(SIG_SETMASK, &previous_, nullptr);
    }
    PipeSignalHeldBack(const PipeSignalHeldBack &) = delete;
    PipeSignalHeldBack &operator=(const PipeSignalHeldBack &) = delete;

private:
    sigset_t pipe_{};
    sigset_t previous_{};
    bool wasPending_ = false;
};

} // namespace

ConsoleDestination::ConsoleDestination(DestinationSettings settings, bool useTerminalColors, int descriptor)
    : BaseDestination(std::move(settings)), useTerminalColors_(useTerminalColors), descriptor_(descriptor) {}

void ConsoleDestination::write(std::span<const LogRecord> records) {
    const PipeSignalHeldBack heldBack;
    formatLines(records, useTerminalColors_, [this](std::string_view lines) {
        if (const int failure = writeAll(descriptor_, lines)) {
            const char *reason = strerrordesc_np(failure);
            reportLoss(reason != nullptr ? reason : "the console cannot be written");
        }
    });
}

} // namespace velmar
