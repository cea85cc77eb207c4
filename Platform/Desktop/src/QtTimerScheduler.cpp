#include <Desktop/QtTimerScheduler.h>

#include <QCoreApplication>
#include <QThread>
#include <QTimer>

#include <utility>

namespace velmar {

namespace {

/// Destroys an object of the main thread from any thread.
struct DeleteOnItsThread {
    void operator()(QObject *object) const {
        if (object->thread() == QThread::currentThread()) {
            delete object;
        } else {
            object->deleteLater();
        }
    }
};

class LoopTimer final : public Timer {
public:
    LoopTimer(TimerFunction function, std::chrono::milliseconds delay, bool isSingleShot)
        : function_(std::move(function)), clock_(new QTimer) {
        clock_->setSingleShot(isSingleShot);
        QObject::connect(clock_.get(), &QTimer::timeout, clock_.get(),
                         [tick = function_] { static_cast<void>(tick.postTick()); });
        clock_->moveToThread(QCoreApplication::instance()->thread());
        // At once on the main thread, posted from any other.
        QMetaObject::invokeMethod(clock_.get(), [clock = clock_.get(), delay] { clock->start(delay); });
    }
    ~LoopTimer() override { function_.cancel(); }
    LoopTimer(const LoopTimer &) = delete;
    LoopTimer &operator=(const LoopTimer &) = delete;

    void fire() override { function_.post(); }

private:
    TimerFunction function_;
    std::unique_ptr<QTimer, DeleteOnItsThread> clock_;
};

} // namespace

std::unique_ptr<Timer> QtTimerScheduler::start(TimerFunction function, std::chrono::milliseconds delay,
                                               std::chrono::milliseconds interval) {
    return std::make_unique<LoopTimer>(std::move(function), delay, interval.count() == 0);
}

} // namespace velmar
