#pragma once

#include <Dispatch/MainQueue.h>

#include <functional>
#include <memory>

namespace velmar {

/// The main queue on the event loop of the thread that makes it. What a function throws is reported as
/// uncaught, and the functions behind it run all the same. While a function runs a loop of its own (an
/// alert), the others go on in it.
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
