#pragma once

#include <Foundation/Descriptor.h>
#include <Foundation/Process.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace velmar {

class ChildProcess;

/// Standard output of the last process of a chain.
struct ProcessOutput {
    std::string bytes;
    bool isCut = false; ///< True if there was more output than the limit.
};

/// A pipeline of child processes that run concurrently. Each process reads the output of its predecessor; the
/// first one reads /dev/null. The processes share this process's standard error and no other descriptor. Each
/// has its own process group and no blocked or ignored signals. Each is reaped when it ends, even after the
/// chain is destroyed, and keeps running if this process ends first. No function waits for a process. Calls
/// must not overlap; the thread may change.
class ProcessChain {
public:
    ProcessChain();
    /// Gives up a chain whose output was not requested: closes the output and sends SIGTERM to the process
    /// groups.
    ~ProcessChain();
    ProcessChain(const ProcessChain &) = delete;
    ProcessChain &operator=(const ProcessChain &) = delete;

    /// Appends a process and starts it. Throws ProcessError; the chain is then unchanged.
    void launch(const Process &process);

    /// Appends the last process, which writes to an anonymous file of at most `limit` bytes instead of a
    /// pipe. Further writes fail. The process may outlive this process. The output is complete when the
    /// process itself has ended, even if its children still run. Throws ProcessError.
    void launchIntoFile(const Process &process, std::size_t limit);

    /// Calls the completion once, on a pool thread, when the last process has ended and, if it writes to a
    /// pipe, all writers have closed the pipe. Keeps at most `limit` bytes. The completion is not called
    /// after DispatchQueue::shutdown. Must be called once, after the last launch. Throws ProcessError.
    void readOutput(std::size_t limit, std::function<void(ProcessOutput)> completion);

private:
    void readFile(std::function<void(ProcessOutput)> completion);

    std::vector<ChildProcess> children_;
    std::string lastPath_;
    Descriptor output_; // Output of the last process.
    bool isOutputFile_ = false;
};

} // namespace velmar
