#pragma once

#include <Foundation/LocalizedError.h>

#include <string>

namespace velmar {

struct ProcessFailure {
    /// No directory of the search path contains a program of this name.
    struct NoSuchCommand {
        std::string name;
        [[nodiscard]] std::string errorDescription() const;
    };
    /// The path or an argument contains a NUL byte, which would truncate it.
    struct HoldsNul {
        std::string path; ///< Path of the program.
        [[nodiscard]] std::string errorDescription() const;
    };
    /// The program exists, but its interpreter doesn't.
    struct MissingInterpreter {
        std::string path;
        [[nodiscard]] std::string errorDescription() const;
    };
    /// A system call failed for any other reason.
    struct NotLaunched {
        std::string path;
        int code; ///< errno
        [[nodiscard]] std::string errorDescription() const;
    };
};

/// An error that prevents the launch of a program. Each message is one sentence.
class ProcessError final
    : public ErrorOfCases<ProcessFailure::NoSuchCommand, ProcessFailure::HoldsNul,
                          ProcessFailure::MissingInterpreter, ProcessFailure::NotLaunched>,
      public ProcessFailure {
public:
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar
