#pragma once

#include <System/RunningApplications.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velmar {

class IdentityAuthority;

/// Notices applications that start, by looking at the processes of the machine from time to time and
/// comparing.
///
/// A process is an application's start if it belongs to one of the users, doesn't descend from the process
/// that watches, and is no part of what runs already: not in the unit of the service manager that a running
/// application has, and not the same application as its parent, or as an ancestor that has gone. A look takes
/// a list of the processes and reads the new ones only: at the look that finds them and at the next two,
/// since a process is often seen before it has become the program that it is to run. It is told when it has a
/// unit, when two readings in a row say the same, or when it has ended.
///
/// The identifier is, in this order:
/// - that in the name of the unit, as session managers name them: "app-gnome-org.example.App-123.scope",
///   "app-org.example.App@autostart.service", "snap.NAME.APP-UUID.scope" (NAME_APP);
/// - that of the desktop entry whose Exec or TryExec is the executable and nothing else;
/// - the file name of the executable, for a script that of the script.
///
/// One thread at a time.
class ProcessWatch {
public:
    /// Where it looks.
    struct Places {
        std::string processes = "/proc";
        std::vector<std::string> applications; ///< Directories of desktop entries; the first is preferred.
        std::vector<std::string> executables;  ///< Directories that are searched for a program's name.
        std::vector<std::uint32_t> users;      ///< Whose processes are looked at.
        /// The process that watches: what it starts, and what that starts, is no start of an application.
        std::int32_t ownProcess = 0;
    };

    /// Those of this process. The users are the one that it acts as and, for root, also the one in front of
    /// the screen.
    [[nodiscard]] static Places placesOfProcess(const IdentityAuthority &authority);

    /// What runs at this moment is never told.
    explicit ProcessWatch(Places places);
    ~ProcessWatch();
    ProcessWatch(const ProcessWatch &) = delete;
    ProcessWatch &operator=(const ProcessWatch &) = delete;

    /// The starts that have become certain since the last look, in the order in which the processes began.
    [[nodiscard]] std::vector<RunningApplication> look();

private:
    class Table;
    std::unique_ptr<Table> table_;
};

} // namespace velmar
