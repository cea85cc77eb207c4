#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace velmar {

/// Turns SIGTERM and SIGINT into calls on the main thread's event loop. Both signals are ignored after
/// destruction. At most one instance per process.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> onSignal);
    ~TerminationSignals();
    /// Returns true if a signal has arrived that the loop hasn't handled yet.
    [[nodiscard]] bool isOnePending() const;
    TerminationSignals(const TerminationSignals &) = delete;
    TerminationSignals &operator=(const TerminationSignals &) = delete;

private:
    int descriptor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace velmar
