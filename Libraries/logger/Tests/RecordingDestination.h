#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <vector>

#include <logger/BaseDestination.h>

namespace velmar {

/// Records messages. A closed destination blocks in its first write until open() is called.
class RecordingDestination : public BaseDestination {
public:
    explicit RecordingDestination(DestinationSettings settings = {}, bool open = true)
        : BaseDestination(std::move(settings)), open_(open) {}

    void write(std::span<const LogRecord> records) override {
        std::unique_lock lock(mutex_);
        entered_ = true;
        changed_.notify_all();
        changed_.wait(lock, [this] { return open_; });
        records_.insert(records_.end(), records.begin(), records.end());
    }

    void waitUntilEntered() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return entered_; });
    }
    void open() {
        const std::lock_guard lock(mutex_);
        open_ = true;
        changed_.notify_all();
    }

    std::vector<LogRecord> records() {
        const std::lock_guard lock(mutex_);
        return records_;
    }
    std::vector<std::string> messages() {
        std::vector<std::string> texts;
        for (const auto &record : records()) {
            texts.push_back(record.message);
        }
        return texts;
    }

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<LogRecord> records_;
    bool open_;
    bool entered_ = false;
};

} // namespace velmar
