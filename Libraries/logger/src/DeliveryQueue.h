#pragma once

#include <chrono>
#include <cstddef>
#include <memory>

#include <logger/LogRecord.h>

namespace velmar {

class BaseDestination;

/// The serial queue of an asynchronous destination. Its own thread, started with the first message, writes
/// all waiting messages as one batch. Each destination has a thread, so that a blocked one (a pipe without a
/// reader) holds up neither the callers nor other destinations. Thread-safe.
class DeliveryQueue {
public:
    /// Limits of waiting messages. Further messages are dropped and counted, and one line reports their
    /// number once the destination writes again.
    static constexpr std::size_t maximumRecords = 65'536;
    static constexpr std::size_t maximumBytes = 64 * 1024 * 1024;

    explicit DeliveryQueue(std::shared_ptr<BaseDestination> destination);
    /// Doesn't wait: the thread writes the remaining messages and ends.
    ~DeliveryQueue();
    DeliveryQueue(const DeliveryQueue &) = delete;
    DeliveryQueue &operator=(const DeliveryQueue &) = delete;

    void push(LogRecord &&record);
    /// Waits until all earlier messages are written. Returns false if the deadline expires first.
    bool drain(std::chrono::steady_clock::time_point deadline);

private:
    class Worker;
    std::shared_ptr<Worker> worker_;
};

} // namespace velmar
