#include "OutputReading.h"

#include "DescriptorWatching.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <new>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace velmar {

namespace {

constexpr std::size_t blockSize = 64 * 1024; // capacity of a pipe
// Limit per callback, so that other work gets the thread.
constexpr int blocksAtOnce = 16;

} // namespace

std::shared_ptr<OutputReading> OutputReading::make(Descriptor output, const std::string &path,
                                                   std::size_t limit,
                                                   std::function<void(ProcessOutput)> completion) {
    fcntl(output.number(), F_SETFL, O_NONBLOCK);
    auto watch = watched(std::move(output), path);
    return std::shared_ptr<OutputReading>(new OutputReading(std::move(watch), limit, std::move(completion)));
}

OutputReading::OutputReading(DescriptorWatch watch, std::size_t limit,
                             std::function<void(ProcessOutput)> completion)
    : watch_(std::move(watch)), limit_(limit), completion_(std::move(completion)) {}

void OutputReading::start() {
    watch_.whenReadable([self = shared_from_this()] { self->readSome(); });
}

void OutputReading::finishOne() {
    if (--unfinished_ == 0) {
        completion_(std::move(output_));
    }
}

void OutputReading::readSome() {
    std::array<char, blockSize> block;
    for (int count = 0; count < blocksAtOnce; ++count) {
        const ssize_t length = read(watch_.number(), block.data(), block.size());
        if (length < 0 && errno == EINTR) {
            continue;
        }
        if (length < 0 && errno == EAGAIN) {
            break;
        }
        if (length <= 0) {
            finishOne();
            return;
        }
        // Output beyond the limit is read and dropped, so that the process doesn't block.
        const std::size_t kept = std::min(static_cast<std::size_t>(length), limit_ - output_.bytes.size());
        try {
            output_.bytes.append(block.data(), kept);
            output_.isCut |= kept < static_cast<std::size_t>(length);
        } catch (const std::bad_alloc &) {
            limit_ = output_.bytes.size();
            output_.isCut = true;
        }
    }
    start();
}

} // namespace velmar
