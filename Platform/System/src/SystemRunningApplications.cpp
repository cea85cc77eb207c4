#include <System/SystemRunningApplications.h>

#include <Dispatch/DispatchQueue.h>

#include <mutex>
#include <utility>

namespace velmar {

namespace {

/// State shared by the main thread and the queue.
struct Watched {
    Watched(MainQueue &queue, RunningApplications::Observer told, ProcessWatch::Places places)
        : mainQueue(&queue),
          observer(std::make_shared<const RunningApplications::Observer>(std::move(told))),
          watch(std::move(places)) {}

    std::mutex mutex;
    MainQueue *mainQueue; // Guarded by mutex; null once the observation has ended.
    // Main thread only; null once the observation has ended.
    std::shared_ptr<const RunningApplications::Observer> observer;
    ProcessWatch watch; // The queue's, once the observation has begun.
};

void tell(const std::shared_ptr<Watched> &watched, const std::vector<RunningApplication> &started) {
    for (const RunningApplication &application : started) {
        // The observer may have ended its own observation.
        if (const auto observer = watched->observer) {
            (*observer)(application);
        }
    }
}

void look(const std::shared_ptr<Watched> &watched) {
    auto started = watched->watch.look();
    const std::lock_guard lock(watched->mutex);
    if (watched->mainQueue != nullptr && !started.empty()) {
        watched->mainQueue->async([watched, started = std::move(started)] { tell(watched, started); });
    }
}

} // namespace

class SystemRunningApplications::Watching final : public Observation {
public:
    Watching(MainQueue &mainQueue, TimerScheduler &timers, Observer observer, ProcessWatch::Places places)
        : watched_(std::make_shared<Watched>(mainQueue, std::move(observer), std::move(places))),
          timer_(timers.repeating(queue_, interval, [watched = watched_] { look(watched); })) {}

    ~Watching() override {
        watched_->observer = nullptr;
        const std::lock_guard lock(watched_->mutex);
        watched_->mainQueue = nullptr;
    }
    Watching(const Watching &) = delete;
    Watching &operator=(const Watching &) = delete;

private:
    DispatchQueue queue_{"RunningApplications"};
    std::shared_ptr<Watched> watched_;
    std::unique_ptr<Timer> timer_;
};

SystemRunningApplications::SystemRunningApplications(MainQueue &mainQueue, TimerScheduler &timers,
                                                     std::function<ProcessWatch::Places()> places)
    : mainQueue_(mainQueue), timers_(timers), places_(std::move(places)) {}

std::unique_ptr<RunningApplications::Observation> SystemRunningApplications::observe(Observer observer) {
    return std::make_unique<Watching>(mainQueue_, timers_, std::move(observer), places_());
}

} // namespace velmar
