#include <Foundation/ProcessChain.h>

#include <Foundation/ProcessError.h>

#include "ChildProcess.h"
#include "OutputReading.h"

#include <cerrno>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace velmar {

namespace {

// A process that was started without standard streams gives their numbers to what it opens; a child has those
// replaced one after the other.
Descriptor aboveStandardStreams(Descriptor descriptor) {
    if (descriptor.number() > STDERR_FILENO)
        return descriptor;
    return Descriptor(fcntl(descriptor.number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

struct Pipe {
    Descriptor reading;
    Descriptor writing;
};

Pipe makePipe(const std::string &path) {
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw ProcessError(ProcessError::NotLaunched{path, errno});
    Pipe pipe{aboveStandardStreams(Descriptor(ends[0])), aboveStandardStreams(Descriptor(ends[1]))};
    if (!pipe.reading || !pipe.writing)
        throw ProcessError(ProcessError::NotLaunched{path, EMFILE});
    return pipe;
}

} // namespace

ProcessChain::ProcessChain() = default;

ProcessChain::~ProcessChain() {
    for (const ChildProcess &child : children_) {
        child.terminate();
        child.whenEnded([] {});
    }
}

void ProcessChain::launch(const Process &process) {
    Pipe pipe = makePipe(process.executablePath);
    children_.emplace_back(process, output_, pipe.writing);
    lastPath_ = process.executablePath;
    output_ = std::move(pipe.reading);
}

void ProcessChain::readOutput(std::size_t limit, std::function<void(ProcessOutput)> completion) {
    const auto reading =
        OutputReading::make(std::exchange(output_, Descriptor()), lastPath_, limit, std::move(completion));
    const std::vector<ChildProcess> children = std::exchange(children_, {});
    for (const ChildProcess &child : children) {
        if (&child == &children.back())
            child.whenEnded([reading] { reading->finishOne(); });
        else
            child.whenEnded([] {});
    }
    reading->start();
}

} // namespace velmar
