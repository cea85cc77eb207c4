#pragma once

#include <Command.h>

#include <string>
#include <vector>

namespace velmar {

/// Runs a command line, given without the program's name. Errors of usage and of output go to `err` too.
[[nodiscard]] ExitStatus runCommandLine(std::vector<std::string> arguments,
                                        const CommandEnvironment &environment);

} // namespace velmar
