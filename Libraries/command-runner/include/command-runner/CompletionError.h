#pragma once

#include <Foundation/LocalizedError.h>

#include <string>

namespace velmar {

struct CompletionFailure {
    /// The raw command, or the part of it before, between or behind its "|", names no program.
    struct NoProcessesBuiltFromRawCommand {
        std::string command; ///< The raw command, whole.
        [[nodiscard]] std::string errorDescription() const;
    };
    /// What the program printed is not UTF-8.
    struct NilString {
        [[nodiscard]] std::string errorDescription() const;
    };
    /// Something that nobody counts on, such as a want of memory.
    struct Unexpected {
        std::string reason;
        [[nodiscard]] std::string errorDescription() const;
    };
};

/// Why a command has no text as its result, apart from a launch that failed.
class CompletionError final
    : public ErrorOfCases<CompletionFailure::NoProcessesBuiltFromRawCommand, CompletionFailure::NilString,
                          CompletionFailure::Unexpected>,
      public CompletionFailure {
public:
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar
