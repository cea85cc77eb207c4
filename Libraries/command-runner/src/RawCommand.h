#pragma once

#include <Foundation/Process.h>

#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// The processes of a raw command. `executablePath` is the first word of each piece, which may be a bare
/// name.
struct RawCommand {
    std::vector<Process> processes;
    std::vector<std::string> leftOut; ///< Text that is neither a word nor blank.

    /// Parses a raw command. Throws CompletionError if a piece has no words, and RegularExpressionError.
    explicit RawCommand(std::string_view text);
};

} // namespace velmar
