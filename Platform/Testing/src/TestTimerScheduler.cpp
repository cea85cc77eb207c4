#include <Testing/TestTimerScheduler.h>

#include <algorithm>
#include <future>
#include <utility>

namespace velmar {

namespace {

void runOnItsQueue(const TimerFunction &function) {
    if (function.queue().isCurrent()) {
        function.run();
        return;
    }
    // Ready, too, if the queue drops the function and the promise with it.
    auto end = std::make_shared<std::promise<void>>();
    const auto hasEnded = end->get_future();
    function.queue().async([function, end = std::move(end)] {
        function.run();
        end->set_value();
    });
    hasEnded.wait();
}

} // namespace

struct TestTimerScheduler::Entry {
    TimerFunction function;
    std::chrono::milliseconds due;
    std::chrono::milliseconds interval; // 0 for one that ticks once.
    bool isRunning = true;
};

class TestTimerScheduler::TestTimer final : public Timer {
public:
    explicit TestTimer(std::shared_ptr<Entry> entry) : entry_(std::move(entry)) {}
    ~TestTimer() override {
        entry_->isRunning = false;
        entry_->function.cancel();
    }
    TestTimer(const TestTimer &) = delete;
    TestTimer &operator=(const TestTimer &) = delete;

    void fire() override { entry_->function.post(); }

private:
    std::shared_ptr<Entry> entry_;
};

std::unique_ptr<Timer> TestTimerScheduler::start(TimerFunction function, std::chrono::milliseconds delay,
                                                 std::chrono::milliseconds interval) {
    auto entry = std::make_shared<Entry>(Entry{std::move(function), now_ + delay, interval, true});
    entries_.push_back(entry);
    return std::make_unique<TestTimer>(std::move(entry));
}

void TestTimerScheduler::advance(std::chrono::milliseconds time) {
    const auto end = now_ + time;
    while (const auto entry = nextDue(end)) {
        now_ = std::max(now_, entry->due);
        if (entry->interval.count() > 0) {
            entry->due += entry->interval;
        } else {
            entry->isRunning = false;
        }
        runOnItsQueue(entry->function);
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
        if (entry->due <= end && (!next || entry->due < next->due)) {
            next = entry;
        }
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
