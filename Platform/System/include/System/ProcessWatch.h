#pragma once

#include <System/RunningApplications.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace velmar {

class IdentityAuthority;

/// Detects starts of applications by comparing successive lists of the machine's processes.
///
/// A process counts as the start of an application if it belongs to one of the watched users, doesn't descend
/// from the watching process and isn't part of a running application. It is part of one if its unit of the
/// service manager has other processes, or, without a unit, if it has the identifier of its parent or, as an
/// orphan, of a process that has just ended.
///
/// Only new processes are read, by the look that finds them and by the next two, because a process is often
/// listed before it executes its final program. A start is reported once the process has a unit, two
/// successive readings agree, the third reading is done or the process has ended.
///
/// The identifier is the first of these that exists:
///
/// - the identifier in the unit's name, as session managers write it: "app-gnome-org.example.App-123.scope",
///   "app-org.example.App@autostart.service", "snap.NAME.APP-UUID.scope" (NAME_APP);
/// - the identifier of the desktop entry whose Exec or TryExec starts the executable and nothing else;
/// - the file name of the executable, or of the script that it runs.
///
/// Not thread-safe, but not bound to one thread.
class ProcessWatch {
public:
    /// Configuration of a watch.
    struct Places {
        std::string processes = "/proc";
        std::vector<std::string> applications; ///< Directories of desktop entries, in order of precedence.
        std::vector<std::string> executables;  ///< Directories searched for a program's name.
        std::vector<std::uint32_t> users;      ///< Ids of the users whose processes are watched.
        /// The watching process. Its descendants are never reported.
        std::int32_t ownProcess = 0;
        /// Name of the service manager's unit that a process runs in, empty without one. nullptr: no process
        /// has a unit.
        std::function<std::string(std::int32_t process)> unitOfProcess = nullptr;
    };

    /// Returns the places for this process. The watched users are the effective user and, for root, also the
    /// user at the console.
    [[nodiscard]] static Places placesOfProcess(const IdentityAuthority &authority);

    /// Starts a watch. Processes that already run are never reported.
    explicit ProcessWatch(Places places);
    ~ProcessWatch();
    ProcessWatch(const ProcessWatch &) = delete;
    ProcessWatch &operator=(const ProcessWatch &) = delete;

    /// Returns the starts that became certain since the last look, in the order of their start times.
    [[nodiscard]] std::vector<RunningApplication> look();

private:
    class Table;
    std::unique_ptr<Table> table_;
};

} // namespace velmar
