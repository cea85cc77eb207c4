#pragma once

#include <Dispatch/DescriptorWatch.h>
#include <Foundation/Descriptor.h>
#include <Foundation/ProcessChain.h>

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// Reads the output of a process to its end. Kept alive by the callbacks that it registers.
class OutputReading : public std::enable_shared_from_this<OutputReading> {
public:
    /// Throws ProcessError about the program at `path`.
    [[nodiscard]] static std::shared_ptr<OutputReading> make(Descriptor output, const std::string &path,
                                                             std::size_t limit,
                                                             std::function<void(ProcessOutput)> completion);

    void start();

    /// Marks the end of the process; must be called once. The completion runs after both this call and the
    /// end of the output.
    void finishOne();

private:
    OutputReading(DescriptorWatch watch, std::size_t limit, std::function<void(ProcessOutput)> completion);
    void readSome();

    DescriptorWatch watch_;
    std::size_t limit_;
    std::function<void(ProcessOutput)> completion_;
    ProcessOutput output_;
    std::atomic<int> unfinished_{2};
};

} // namespace velmar
