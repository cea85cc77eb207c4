#pragma once

#include <string>
#include <vector>

namespace velmar {

/// A program with its arguments, to be launched by a ProcessChain.
struct Process {
    /// PATH is not searched: a name without a slash is a file in the current directory.
    std::string executablePath;
    std::vector<std::string> arguments;

    /// Returns the path and the arguments, joined by spaces, for messages.
    [[nodiscard]] std::string description() const;

    /// Throws the ProcessError that a launch would fail with if it can be detected beforehand: no file at the
    /// path, a directory, no permission to execute, a NUL byte.
    void checkLaunchable() const;

    bool operator==(const Process &) const = default;
};

} // namespace velmar
