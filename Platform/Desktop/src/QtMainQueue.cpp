#include <Desktop/QtMainQueue.h>

#include <Dispatch/UncaughtHandler.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <deque>
#include <mutex>
#include <utility>
#include <vector>

namespace velmar {

/// Posts one event for all waiting functions.
class QtMainQueue::Receiver final : public QObject {
public:
    Receiver() {
        // Wakes a nested loop, started by a function, to run the rest of the batch.
        connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
            if (!batch_.empty()) {
                wake();
            }
        });
    }

    void post(std::function<void()> function) {
        {
            const std::lock_guard lock(mutex_);
            incoming_.push_back(std::move(function));
            if (std::exchange(isPosted_, true)) {
                return;
            }
        }
        wake();
    }

    bool event(QEvent *event) override {
        if (event->type() != QEvent::User) {
            return QObject::event(event);
        }
        {
            const std::lock_guard lock(mutex_);
            isPosted_ = false;
            std::move(incoming_.begin(), incoming_.end(), std::back_inserter(batch_));
            incoming_.clear();
        }
        while (!batch_.empty()) {
            const std::function<void()> function = std::move(batch_.front());
            batch_.pop_front();
            runReportingUncaught("MainQueue", function);
        }
        return true;
    }

private:
    void wake() { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

    std::mutex mutex_; // guards incoming_ and isPosted_
    std::vector<std::function<void()>> incoming_;
    bool isPosted_ = false;
    std::deque<std::function<void()>> batch_; // main thread only
};

QtMainQueue::QtMainQueue() : receiver_(std::make_unique<Receiver>()) {}
QtMainQueue::~QtMainQueue() = default;

void QtMainQueue::async(std::function<void()> function) {
    receiver_->post(std::move(function));
}

bool QtMainQueue::isCurrent() const {
    return QThread::currentThread() == receiver_->thread();
}

} // namespace velmar
