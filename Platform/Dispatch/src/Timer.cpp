#include <Dispatch/Timer.h>

#include <algorithm>
#include <utility>

namespace velmar {

namespace {

// An implementation's clock may count milliseconds in 31 bits.
constexpr std::chrono::days longest(24);

} // namespace

std::unique_ptr<Timer> TimerScheduler::repeating(AnyQueue queue, std::chrono::milliseconds interval,
                                                 std::function<void()> function) {
    const auto used = std::clamp<std::chrono::milliseconds>(interval, std::chrono::milliseconds(1), longest);
    return start({std::move(queue), std::move(function)}, used, used);
}

std::unique_ptr<Timer> TimerScheduler::once(AnyQueue queue, std::chrono::milliseconds delay,
                                            std::function<void()> function) {
    const auto used = std::clamp<std::chrono::milliseconds>(delay, std::chrono::milliseconds(0), longest);
    return start({std::move(queue), std::move(function)}, used, std::chrono::milliseconds(0));
}

} // namespace velmar
