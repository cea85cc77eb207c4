#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace velmar {

/// Turns SIGTERM and SIGINT into a call on the main thread's loop, for as long as it lives; from then
/// on both are ignored. One per process.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> onSignal);
    ~TerminationSignals();
    /// Whether one has come that the loop has not called for yet.
    [[nodiscard]] bool isOnePending() const;
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;

private:
    int descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace velmar
