#pragma once

#include <Foundation/Process.h>

#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// The processes of a raw command; the first word of each is its `executablePath`, even where that is a bare
/// name.
struct RawCommand {
    std::vector<Process> processes;
    std::vector<std::string> leftOut; ///< What is neither a word nor blank.

    /// Throws CompletionError where a part of the command has no words, RegularExpressionError.
    explicit RawCommand(std::string_view text);
};

} // namespace velmar
