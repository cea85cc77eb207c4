#include "DeliveryQueue.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include <pthread.h>
#include <sched.h>

#include <fmt/core.h>

#include <Dispatch/SignalsBlocked.h>
#include <logger/BaseDestination.h>

namespace velmar {

namespace {

std::size_t bytesOf(const LogRecord &record) {
    return record.message.size() + record.context.size();
}

LogRecord recordOfLoss(std::uint64_t lost) {
    LogRecord record;
    record.level = LogLevel::warning;
    record.time = std::chrono::system_clock::now();
    record.where = SourceLocation::current();
    record.message = fmt::format("{} messages were lost because they could not be written in time", lost);
    return record;
}

} // namespace

// State shared by the queue and its thread, so that the process can end without waiting for a blocked thread.
class DeliveryQueue::Worker : public std::enable_shared_from_this<Worker> {
public:
    explicit Worker(std::shared_ptr<BaseDestination> destination) : destination_(std::move(destination)) {}

    void push(LogRecord &&record) {
        const std::lock_guard lock(mutex_);
        if (waiting_.size() >= maximumRecords || (waitingBytes_ > 0 && waitingBytes_ >= maximumBytes)) {
            ++lost_;
            return;
        }
        waitingBytes_ += bytesOf(record);
        waiting_.push_back(std::move(record));
        ++accepted_;
        if (!started_) {
            start();
        } else if (idle_) {
            idle_ = false;
            arrived_.notify_one();
        }
    }

    bool drain(std::chrono::steady_clock::time_point deadline) {
        std::unique_lock lock(mutex_);
        const std::uint64_t target = accepted_;
        return written_.wait_until(lock, deadline, [&] { return writtenCount_ >= target; });
    }

    void stop() {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
        arrived_.notify_one();
    }

private:
    void start() {
        const SignalsBlocked blocked;
        std::thread([self = shared_from_this()] { self->run(); }).detach();
        started_ = true;
    }

    void run() {
        pthread_setname_np(pthread_self(), "velmar-log");
        // A batch thread doesn't preempt the caller when it wakes up.
        const sched_param priority{};
        pthread_setschedparam(pthread_self(), SCHED_BATCH, &priority);
        std::vector<LogRecord> batch;
        while (take(batch)) {
            try {
                if (lostBeforeTaking_ > 0) {
                    batch.push_back(recordOfLoss(lostBeforeTaking_));
                }
                destination_->write(batch);
            } catch (...) {
                // A line that cannot be written is dropped; there is no other place to report it.
            }
            finish(batch);
        }
    }

    // Waits for records and moves all of them into the empty batch. Returns false at the end of the queue.
    bool take(std::vector<LogRecord> &batch) {
        std::unique_lock lock(mutex_);
        while (waiting_.empty()) {
            if (stopping_) {
                return false;
            }
            idle_ = true;
            arrived_.wait(lock);
        }
        idle_ = false;
        batch.swap(waiting_);
        waitingBytes_ = 0;
        taken_ = batch.size();
        lostBeforeTaking_ = std::exchange(lost_, 0);
        return true;
    }

    void finish(std::vector<LogRecord> &batch) {
        batch.clear();
        if (batch.capacity() > keptCapacity) {
            batch.shrink_to_fit();
        }
        const std::lock_guard lock(mutex_);
        writtenCount_ += taken_;
        written_.notify_all();
    }

    static constexpr std::size_t keptCapacity = 4096;

    const std::shared_ptr<BaseDestination> destination_;
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::condition_variable written_;
    std::vector<LogRecord> waiting_;
    std::size_t waitingBytes_ = 0;
    std::uint64_t accepted_ = 0;
    std::uint64_t writtenCount_ = 0;
    std::uint64_t lost_ = 0;
    // Counts of the batch that the thread is writing.
    std::size_t taken_ = 0;
    std::uint64_t lostBeforeTaking_ = 0;
    bool started_ = false;
    bool idle_ = false;
    bool stopping_ = false;
};

DeliveryQueue::DeliveryQueue(std::shared_ptr<BaseDestination> destination)
    : worker_(std::make_shared<Worker>(std::move(destination))) {}

DeliveryQueue::~DeliveryQueue() {
    worker_->stop();
}

void DeliveryQueue::push(LogRecord &&record) {
    worker_->push(std::move(record));
}

bool DeliveryQueue::drain(std::chrono::steady_clock::time_point deadline) {
    return worker_->drain(deadline);
}

} // namespace velmar
