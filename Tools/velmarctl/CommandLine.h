#pragma once

#include <Command.h>

#include <string>
#include <vector>

namespace velmar {

/// Carries out a command line, which is given without the program's name. Complaints about the command line
/// itself and about the output go to `err`, too.
[[nodiscard]] ExitStatus runCommandLine(std::vector<std::string> arguments,
                                        const CommandEnvironment &environment);

} // namespace velmar
