#pragma once

#include <Dispatch/MainQueue.h>

#include <functional>
#include <memory>

namespace velmar {

/// The main queue on the event loop of the thread that creates it. An exception of a function is reported as
/// uncaught; the following functions still run. A nested loop within a function, such as that of an alert,
/// runs further functions.
class QtMainQueue final : public MainQueue {
public:
    QtMainQueue();
    ~QtMainQueue() override;

    void async(std::function<void()> function) override;
    [[nodiscard]] bool isCurrent() const override;

private:
    class Receiver;
    std::unique_ptr<Receiver> receiver_;
};

} // namespace velmar
