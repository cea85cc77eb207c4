#pragma once

#include <Dispatch/DescriptorWatch.h>
#include <Foundation/Descriptor.h>
#include <Foundation/Process.h>

#include <functional>
#include <optional>

#include <sys/types.h>

namespace velmar {

/// A child process, which stays in the system's table until `whenEnded` has reaped it.
class ChildProcess {
public:
    /// Starts it. Its standard input is `input`, or the null device if that is none; both descriptors have
    /// numbers above those of the standard streams. Throws ProcessError.
    ChildProcess(const Process &process, const Descriptor &input, const Descriptor &output);

    /// Asks it and its group to end. Not after `whenEnded`.
    void terminate() const;

    /// Reaps it when it has ended, then runs the function on a thread of the pool. Once.
    void whenEnded(std::function<void()> function) const;

private:
    pid_t id_;
    std::optional<DescriptorWatch> end_; // none if the system has reaped it already
};

} // namespace velmar
