#include <Base/ProcessEnd.h>

#include <Dispatch/DispatchQueue.h>
#include <logger/Logger.h>

#include <chrono>

namespace velmar {

namespace {

constexpr std::chrono::milliseconds bound(2000);
// What hangs on a queue must not cost the log.
constexpr std::chrono::milliseconds boundOfQueues = bound / 2;

} // namespace

bool settleBeforeExit() {
    using std::chrono::steady_clock;
    // A later call gets no time of its own: a log that hangs would hold the process up again.
    static const auto deadline = steady_clock::now() + bound;
    // First: what ends there may still log.
    const bool hasEnded = DispatchQueue::shutdown(boundOfQueues);
    Logger::flush(std::chrono::ceil<std::chrono::milliseconds>(deadline - steady_clock::now()));
    return hasEnded;
}

} // namespace velmar
