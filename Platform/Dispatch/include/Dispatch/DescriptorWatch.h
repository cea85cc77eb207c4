#pragma once

#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// A file descriptor watched by the pool, so that no thread blocks on it. A handle: copies share the watch,
/// and the last one closes the descriptor. Any thread, one at a time.
class DescriptorWatch {
public:
    /// Takes ownership of an open descriptor that can be polled: a pipe, a socket or a process. The label
    /// names the watch in reports. Throws std::system_error, and closes the descriptor, if the system cannot
    /// watch another one.
    DescriptorWatch(int descriptor, std::string label);

    [[nodiscard]] int number() const;

    /// Runs the function once on a pool thread when the descriptor is readable or at its end; for a process,
    /// when it has ended. The function never runs before this call returns, nor after
    /// DispatchQueue::shutdown. Spurious wake-ups are possible but rare: if there is nothing to read, call
    /// again. Call again only after the function has begun. The watch lives until then. Exceptions of the
    /// function are reported.
    void whenReadable(std::function<void()> function) const;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace velmar
