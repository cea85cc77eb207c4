#pragma once

#include <chrono>
#include <cstddef>
#include <memory>

#include <logger/LogRecord.h>

namespace velmar {

class BaseDestination;

/// The serial queue of one asynchronous destination: a thread of its own, started with the first message,
/// which takes all that waits as one batch. A thread each, so that a destination that hangs (a pipe that
/// nobody reads) holds up neither the callers nor the other destinations. Any thread.
class DeliveryQueue {
public:
    /// What may wait for a destination that hangs; what comes on top is dropped and counted, and one line
    /// tells the number once the destination is writing again.
    static constexpr std::size_t maximumRecords = 65'536;
    static constexpr std::size_t maximumBytes = 64 * 1024 * 1024;

    explicit DeliveryQueue(std::shared_ptr<BaseDestination> destination);
    /// Waits for nothing: the thread writes what is left and ends.
    ~DeliveryQueue();
    DeliveryQueue(const DeliveryQueue &) = delete;
    DeliveryQueue &operator=(const DeliveryQueue &) = delete;

    void push(LogRecord &&record);
    /// Waits until what was pushed before was written. False if that is not so at the deadline.
    bool drain(std::chrono::steady_clock::time_point deadline);

private:
    class Worker;
    std::shared_ptr<Worker> worker_;
};

} // namespace velmar
