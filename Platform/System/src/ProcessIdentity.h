#pragma once

#include "DesktopEntries.h"
#include "ProcessDirectory.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace velmar {

/// Identifies the application that a process belongs to.
struct ApplicationIdentity {
    std::string identifier; ///< Empty if unknown.
    std::string unit; ///< Identifies one run of a service manager's unit; empty for a process without one.
    bool operator==(const ApplicationIdentity &) const = default;
};

/// Determines the application of processes. The directory must outlive this object. Not thread-safe.
class ProcessIdentities {
public:
    using UnitOfProcess = std::function<std::string(std::int32_t process)>;

    ProcessIdentities(const ProcessDirectory &directory, std::vector<std::string> applications,
                      std::vector<std::string> executables, UnitOfProcess unitOfProcess);

    [[nodiscard]] ApplicationIdentity identityOf(std::int32_t process, const ProcessRecord &record);

private:
    [[nodiscard]] std::string scriptOf(std::int32_t process, const std::string &interpreter) const;

    const ProcessDirectory &directory_;
    DesktopEntries entries_;
    UnitOfProcess unitOfProcess_;
};

} // namespace velmar
