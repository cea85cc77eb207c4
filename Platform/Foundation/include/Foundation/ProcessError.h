#pragma once

#include <Foundation/LocalizedError.h>

#include <string>

namespace velmar {

struct ProcessFailure {
    /// A bare name that no directory of the search path has a program for.
    struct NoSuchCommand {
        std::string name;
        [[nodiscard]] std::string errorDescription() const;
    };
    /// The path or an argument holds a NUL byte, which would cut it short.
    struct HoldsNul {
        std::string path; ///< Of the program.
        [[nodiscard]] std::string errorDescription() const;
    };
    /// The program is there, but what it is to be run by is not.
    struct MissingInterpreter {
        std::string path;
        [[nodiscard]] std::string errorDescription() const;
    };
    /// What the operating system refused otherwise.
    struct NotLaunched {
        std::string path;
        int code; ///< errno
        [[nodiscard]] std::string errorDescription() const;
    };
};

/// Why a program couldn't be launched; one sentence each.
class ProcessError final
    : public ErrorOfCases<ProcessFailure::NoSuchCommand, ProcessFailure::HoldsNul,
                          ProcessFailure::MissingInterpreter, ProcessFailure::NotLaunched>,
      public ProcessFailure {
public:
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar
