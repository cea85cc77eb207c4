#include <Foundation/ProcessChain.h>

#include <Foundation/ProcessError.h>

#include "ChildProcess.h"
#include "OutputReading.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmar {

namespace {

// Moves the descriptor out of the range of the standard streams, which are replaced one by one in the child.
Descriptor aboveStandardStreams(Descriptor descriptor) {
    if (descriptor.number() > STDERR_FILENO) {
        return descriptor;
    }
    return Descriptor(fcntl(descriptor.number(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

struct Pipe {
    Descriptor reading;
    Descriptor writing;
};

Pipe makePipe(const std::string &path) {
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0) {
        throw ProcessError(ProcessError::NotLaunched{path, errno});
    }
    Pipe pipe{aboveStandardStreams(Descriptor(ends[0])), aboveStandardStreams(Descriptor(ends[1]))};
    if (!pipe.reading || !pipe.writing) {
        throw ProcessError(ProcessError::NotLaunched{path, EMFILE});
    }
    return pipe;
}

// Reads the content up to the shared file position, where the writers stopped.
ProcessOutput contentOf(const Descriptor &file) {
    const off_t end = lseek(file.number(), 0, SEEK_CUR);
    ProcessOutput output;
    output.bytes.resize(end > 0 ? static_cast<std::size_t>(end) : 0);
    std::size_t length = 0;
    while (length < output.bytes.size()) {
        const ssize_t count = pread(file.number(), output.bytes.data() + length, output.bytes.size() - length,
                                    static_cast<off_t>(length));
        if (count <= 0 && errno != EINTR) {
            break;
        }
        length += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    output.bytes.resize(length);
    struct stat attributes {};
    output.isCut = fstat(file.number(), &attributes) == 0 && end >= attributes.st_size;
    return output;
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

void ProcessChain::launchIntoFile(const Process &process, std::size_t limit) {
    Descriptor file =
        aboveStandardStreams(Descriptor(memfd_create("output", MFD_CLOEXEC | MFD_ALLOW_SEALING)));
    if (!file || ftruncate(file.number(), static_cast<off_t>(limit)) != 0 ||
        fcntl(file.number(), F_ADD_SEALS, F_SEAL_GROW | F_SEAL_SHRINK | F_SEAL_SEAL) != 0) {
        throw ProcessError(ProcessError::NotLaunched{process.executablePath, errno});
    }
    children_.emplace_back(process, output_, file);
    lastPath_ = process.executablePath;
    output_ = std::move(file);
    isOutputFile_ = true;
}

void ProcessChain::readOutput(std::size_t limit, std::function<void(ProcessOutput)> completion) {
    if (isOutputFile_) {
        readFile(std::move(completion));
        return;
    }
    const auto reading =
        OutputReading::make(std::exchange(output_, Descriptor()), lastPath_, limit, std::move(completion));
    const std::vector<ChildProcess> children = std::exchange(children_, {});
    for (const ChildProcess &child : children) {
        if (&child == &children.back()) {
            child.whenEnded([reading] { reading->finishOne(); });
        } else {
            child.whenEnded([] {});
        }
    }
    reading->start();
}

void ProcessChain::readFile(std::function<void(ProcessOutput)> completion) {
    const auto file = std::make_shared<const Descriptor>(std::exchange(output_, Descriptor()));
    const std::vector<ChildProcess> children = std::exchange(children_, {});
    for (const ChildProcess &child : children) {
        if (&child == &children.back()) {
            child.whenEnded([file, completion] { completion(contentOf(*file)); });
        } else {
            child.whenEnded([] {});
        }
    }
}

} // namespace velmar
