#pragma once

#include "DesktopEntries.h"
#include "ProcessDirectory.h"

#include <string>
#include <vector>

namespace velmar {

/// Which application a process is.
struct ApplicationIdentity {
    std::string identifier; ///< Empty if that can't be known.
    std::string unit;       ///< One run of a unit of the service manager; empty for a process without one.
    bool operator==(const ApplicationIdentity &) const = default;
};

/// Finds it out. The directory must outlive it; one thread at a time.
class ProcessIdentities {
public:
    ProcessIdentities(const ProcessDirectory &directory, std::vector<std::string> applications,
                      std::vector<std::string> executables);

    [[nodiscard]] ApplicationIdentity identityOf(std::int32_t process, const ProcessRecord &record);

private:
    [[nodiscard]] std::string scriptOf(std::int32_t process, const std::string &interpreter) const;

    const ProcessDirectory &directory_;
    DesktopEntries entries_;
};

} // namespace velmar
