#pragma once

#include <Dispatch/DispatchQueue.h>

#include <functional>
#include <memory>

namespace velmar {

/// Counts operations in progress and notifies when there are none. A handle: copies share the group. When the
/// last handle is destroyed, pending notifications are dropped. Thread-safe.
class DispatchGroup {
public:
    DispatchGroup();

    void enter() const;
    /// Balances one `enter`. Throws std::logic_error if there was none.
    void leave() const;

    /// Posts the function to the queue once every `enter` has been balanced; immediately if no operation is
    /// in progress. Functions are posted in the order of `notify`, each once.
    void notify(DispatchQueue queue, std::function<void()> function) const;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace velmar
