#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace velmar {

class IdentityAuthority;

/// What the program ends with.
enum class ExitStatus {
    wouldRun = 0,
    refused = 1,
    failed = 2, ///< Used wrongly, or the output could not be written.
};

/// Carries out a command line, which is given without the program's name. Results go to `out`, complaints
/// about the command line itself and about `out` to `err`. Never throws for what a file holds.
[[nodiscard]] ExitStatus runCommandLine(std::vector<std::string> arguments,
                                        const IdentityAuthority &authority, std::ostream &out,
                                        std::ostream &err);

} // namespace velmar
