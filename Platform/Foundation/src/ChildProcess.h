#pragma once

#include <Dispatch/DescriptorWatch.h>
#include <Foundation/Descriptor.h>
#include <Foundation/Process.h>

#include <functional>
#include <optional>

#include <sys/types.h>

namespace velmar {

/// A child process. It remains a zombie after its end until whenEnded() reaps it.
class ChildProcess {
public:
    /// Starts the process. Standard input is `input`, or /dev/null if `input` is empty. Both descriptors must
    /// have numbers above the standard streams. Throws ProcessError.
    ChildProcess(const Process &process, const Descriptor &input, const Descriptor &output);

    /// Sends SIGTERM to the process group. Must not be called after whenEnded().
    void terminate() const;

    /// Reaps the process when it has ended, then calls the function on a pool thread. Must be called once.
    void whenEnded(std::function<void()> function) const;

private:
    pid_t id_;
    std::optional<DescriptorWatch> end_; // Empty if the kernel has already reaped the process.
};

} // namespace velmar
