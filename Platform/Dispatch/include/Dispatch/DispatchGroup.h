#pragma once

#include <Dispatch/DispatchQueue.h>

#include <functional>
#include <memory>

namespace velmar {

/// Counts what is under way and tells when nothing is. A handle: copies are the same group. A group may go
/// while things are still under way: what was to be told is then forgotten with the last handle. Any thread.
class DispatchGroup {
public:
    DispatchGroup();

    void enter() const;
    /// Once for each `enter`; throws std::logic_error for one too many.
    void leave() const;

    /// Posts the function to the queue when everything that entered has left; at once if nothing is under
    /// way. Functions are posted in the order of `notify`, each once.
    void notify(DispatchQueue queue, std::function<void()> function) const;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace velmar
