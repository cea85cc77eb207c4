#pragma once

#include <string>
#include <vector>

namespace velmar {

/// A program with its arguments, to be launched by a ProcessChain. A value.
struct Process {
    std::string executablePath; ///< Never searched for: without a slash, a file of the current directory.
    std::vector<std::string> arguments;

    /// The path and the arguments with blanks between them, for messages.
    [[nodiscard]] std::string description() const;

    /// Throws the ProcessError that a launch now would fail with, as far as that can be told without it:
    /// nothing at the path, a directory, no right to execute, a NUL byte.
    void checkLaunchable() const;

    bool operator==(const Process &) const = default;
};

} // namespace velmar
