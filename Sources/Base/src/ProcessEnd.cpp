#include <Base/ProcessEnd.h>

#include <Dispatch/DispatchQueue.h>
#include <logger/Logger.h>

#include <chrono>

namespace velmar {

namespace {

constexpr std::chrono::milliseconds bound(2000);
// Leaves time for the log if a function on a queue hangs.
constexpr std::chrono::milliseconds boundOfQueues = bound / 2;

} // namespace

bool settleBeforeExit() {
    using std::chrono::steady_clock;
    // Shared by all calls: a blocked log must not delay the process twice.
    static const auto deadline = steady_clock::now() + bound;
    // Before the flush: functions that end may still log.
    const bool hasEnded = DispatchQueue::shutdown(boundOfQueues);
    Logger::flush(std::chrono::ceil<std::chrono::milliseconds>(deadline - steady_clock::now()));
    return hasEnded;
}

} // namespace velmar
