#pragma once

#include <Foundation/LocalizedError.h>

#include <string>

namespace velmar {

struct CompletionFailure {
    /// The raw command, or a part of it between "|", contains no words.
    struct NoProcessesBuiltFromRawCommand {
        std::string command; ///< The whole raw command.
        [[nodiscard]] std::string errorDescription() const;
    };
    /// The output is not UTF-8.
    struct NilString {
        [[nodiscard]] std::string errorDescription() const;
    };
    /// An unexpected failure, such as out of memory.
    struct Unexpected {
        std::string reason;
        [[nodiscard]] std::string errorDescription() const;
    };
};

/// A command without a result, for any reason except a failed launch.
class CompletionError final
    : public ErrorOfCases<CompletionFailure::NoProcessesBuiltFromRawCommand, CompletionFailure::NilString,
                          CompletionFailure::Unexpected>,
      public CompletionFailure {
public:
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar
