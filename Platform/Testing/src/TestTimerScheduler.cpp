#include <Testing/TestTimerScheduler.h>

#include <algorithm>
#include <utility>

namespace velmar {

struct TestTimerScheduler::Entry {
    std::chrono::milliseconds due;
    std::chrono::milliseconds interval; // 0 for a single shot
    std::function<void()> function;
    bool isRunning = true;
};

class TestTimerScheduler::TestTimer final : public Timer {
public:
    explicit TestTimer(std::shared_ptr<Entry> entry) : entry_(std::move(entry)) {}
    ~TestTimer() override { entry_->isRunning = false; }
    TestTimer(const TestTimer &) = delete;
    TestTimer &operator=(const TestTimer &) = delete;

    void fire() override {
        // The function may destroy its own timer.
        const auto entry = entry_;
        entry->function();
    }

private:
    std::shared_ptr<Entry> entry_;
};

std::unique_ptr<Timer> TestTimerScheduler::repeating(std::chrono::milliseconds interval,
                                                     std::function<void()> function) {
    // An interval of zero would keep the clock from advancing.
    const auto pause = std::max(interval, std::chrono::milliseconds(1));
    return add(pause, pause, std::move(function));
}

std::unique_ptr<Timer> TestTimerScheduler::once(std::chrono::milliseconds delay,
                                                std::function<void()> function) {
    return add(delay, std::chrono::milliseconds(0), std::move(function));
}

std::unique_ptr<Timer> TestTimerScheduler::add(std::chrono::milliseconds delay,
                                               std::chrono::milliseconds interval,
                                               std::function<void()> function) {
    auto entry = std::make_shared<Entry>(Entry{now_ + delay, interval, std::move(function), true});
    entries_.push_back(entry);
    return std::make_unique<TestTimer>(std::move(entry));
}

void TestTimerScheduler::advance(std::chrono::milliseconds time) {
    const auto end = now_ + time;
    while (const auto entry = nextDue(end)) {
        now_ = std::max(now_, entry->due);
        if (entry->interval.count() > 0)
            entry->due += entry->interval;
        else
            entry->isRunning = false;
        entry->function();
    }
    now_ = end;
}

std::shared_ptr<TestTimerScheduler::Entry> TestTimerScheduler::nextDue(std::chrono::milliseconds end) {
    std::erase_if(entries_, [](const auto &each) {
        const auto entry = each.lock();
        return !entry || !entry->isRunning;
    });
    std::shared_ptr<Entry> next;
    for (const auto &each : entries_) {
        const auto entry = each.lock();
        if (entry->due <= end && (!next || entry->due < next->due))
            next = entry;
    }
    return next;
}

std::size_t TestTimerScheduler::runningTimers() const {
    return static_cast<std::size_t>(std::count_if(entries_.begin(), entries_.end(), [](const auto &each) {
        const auto entry = each.lock();
        return entry && entry->isRunning;
    }));
}

} // namespace velmar
