#pragma once

#include <Foundation/Descriptor.h>
#include <Foundation/Process.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace velmar {

class ChildProcess;

/// What the last process of a chain wrote on its standard output.
struct ProcessOutput {
    std::string bytes;
    bool isCut = false; ///< There was more, which was read and dropped.
};

/// Child processes that run side by side, each reading what the one before writes; the first reads nothing.
/// They share the standard error of this process and no other descriptor; each has a process group of its
/// own, and no signal blocked or ignored. Each one is reaped when it ends, whatever becomes of the chain, and
/// outlives this process if that ends first. Any thread, one at a time; nothing waits.
class ProcessChain {
public:
    ProcessChain();
    /// A chain whose output was not asked for is given up: those that run are sent SIGTERM, with their
    /// groups, and find their pipes closed.
    ~ProcessChain();
    ProcessChain(const ProcessChain &) = delete;
    ProcessChain &operator=(const ProcessChain &) = delete;

    /// Adds a process to the end and starts it. Throws ProcessError, after which nothing has been added.
    void launch(const Process &process);

    /// Adds a last process that writes into a file without a name instead of a pipe, of at most `limit` bytes:
    /// more can't be written. It may go on after this process has ended, and it is over when it has itself
    /// ended, whatever it leaves running. Throws ProcessError.
    void launchIntoFile(const Process &process, std::size_t limit);

    /// Calls the completion once, on a thread of the pool, when the last process has ended and, of a pipe,
    /// everybody who can write to it has closed it; not if DispatchQueue::shutdown comes first. At most `limit`
    /// bytes are kept. To be called once, after a launch; launches nothing any more. Throws ProcessError.
    void readOutput(std::size_t limit, std::function<void(ProcessOutput)> completion);

private:
    void readFile(std::function<void(ProcessOutput)> completion);

    std::vector<ChildProcess> children_;
    std::string lastPath_;
    Descriptor output_; // of the last one
    bool isOutputFile_ = false;
};

} // namespace velmar
