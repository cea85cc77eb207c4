#pragma once

#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// A descriptor of the operating system that the pool watches, so that no thread waits for it. A handle:
/// copies are the same watch, and the descriptor is closed with the last one. Any thread, one at a time.
class DescriptorWatch {
public:
    /// Takes over an open descriptor of something that can be waited for: a pipe, a socket, a process. The
    /// label names it in reports. Throws std::system_error, with the descriptor closed, where the system has
    /// no room for one more.
    DescriptorWatch(int descriptor, std::string label);

    [[nodiscard]] int number() const;

    /// Runs the function once on a thread of the pool, when there is something to read or nothing will come
    /// any more; for a process, when it has ended. Never at once, and at no time after
    /// DispatchQueue::shutdown; seldom too early, so that whoever finds nothing asks again. The next call
    /// comes after this function has begun. The watch lives until then; what the function throws is reported.
    void whenReadable(std::function<void()> function) const;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace velmar
