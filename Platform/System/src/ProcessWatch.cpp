#include <System/ProcessWatch.h>

#include <System/IdentityAuthority.h>

#include <Foundation/UserDirectories.h>

#include "ProcessDirectory.h"
#include "ProcessIdentity.h"
#include "UnitName.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <sstream>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include <unistd.h>

namespace velmar {

namespace {

// Readings of a new process: by the look that finds it and the next two.
constexpr int readingsOfNewProcess = 3;
// Bounds the walk over ancestors, since readings from different moments can form a cycle of parents.
constexpr int mostGenerations = 100;

struct Known {
    ProcessDirectory::Entry entry;
    ProcessRecord record{};
    ApplicationIdentity identity{};
    int readings = 0;    // remaining
    bool isOwn = false;  // descends from the watching process
    bool isPart = false; // belongs to an application that was already running
    bool isTold = false;
};

bool isEarlier(const Known &one, const Known &other) {
    return std::tie(one.record.startTime, one.entry.process) <
           std::tie(other.record.startTime, other.entry.process);
}

} // namespace

class ProcessWatch::Table {
public:
    explicit Table(Places places)
        : directory_(places.processes),
          identities_(directory_, std::move(places.applications), std::move(places.executables),
                      std::move(places.unitOfProcess)),
          users_(std::move(places.users)),
          ownProcess_(places.ownProcess) {
        for (const auto &entry : directory_.list()) {
            known_.push_back(Known{.entry = entry});
        }
    }

    std::vector<RunningApplication> look() {
        // Deferred to the first look because it takes long.
        if (!std::exchange(isRead_, true)) {
            readKnown();
        }
        told_.clear();
        compare(directory_.list());
        readNew();
        for (const Known &process : ended_) {
            leaveUnit(process.identity);
        }
        std::sort(told_.begin(), told_.end(), isEarlier);
        std::vector<RunningApplication> applications;
        for (Known &process : told_) {
            applications.push_back({std::move(process.identity.identifier), process.entry.process});
        }
        return applications;
    }

private:
    void readKnown() {
        for (Known &process : known_) {
            process.isTold = true;
            readRecord(process);
            identify(process);
        }
    }

    // Updates known_ from the list and collects the ended processes.
    void compare(const std::vector<ProcessDirectory::Entry> &entries) {
        std::vector<Known> current;
        current.reserve(entries.size());
        endedIdentifiers_.clear();
        ended_.clear();
        auto former = known_.begin();
        for (const auto &entry : entries) {
            while (former != known_.end() && former->entry.process < entry.process) {
                ended_.push_back(std::move(*former++));
            }
            if (former != known_.end() && former->entry.process == entry.process && !isSame(*former, entry)) {
                ended_.push_back(std::move(*former++));
            }
            if (former != known_.end() && former->entry.process == entry.process) {
                current.push_back(std::move(*former++));
                current.back().entry = entry;
            } else {
                current.push_back(Known{.entry = entry, .readings = readingsOfNewProcess});
            }
        }
        std::move(former, known_.end(), std::back_inserter(ended_));
        known_ = std::move(current);
        for (Known &process : ended_) {
            endedIdentifiers_.insert(process.identity.identifier);
            tell(process);
        }
    }

    // A process number may have been reused.
    [[nodiscard]] bool isSame(const Known &process, const ProcessDirectory::Entry &entry) const {
        if (process.entry.inode == entry.inode) {
            return true;
        }
        const auto record = directory_.record(entry.process);
        return record && record->startTime == process.record.startTime;
    }

    void readNew() {
        std::vector<Known *> pending;
        for (Known &process : known_) {
            if (process.readings > 0 && readRecord(process)) {
                pending.push_back(&process);
            }
        }
        // Parents must precede their children.
        std::sort(pending.begin(), pending.end(),
                  [](const Known *one, const Known *other) { return isEarlier(*one, *other); });
        for (Known *process : pending) {
            --process->readings;
            const bool isAsBefore = identify(*process);
            if (isAsBefore || !process->identity.unit.empty() || process->readings == 0) {
                tell(*process);
            }
        }
    }

    bool readRecord(Known &process) const {
        auto record = directory_.record(process.entry.process);
        if (record) {
            process.record = std::move(*record);
        }
        // Stored, because it must survive the parent's end.
        process.isOwn = isOwn(process);
        return record.has_value();
    }

    [[nodiscard]] bool isOwn(const Known &process) const {
        const Known *ancestor = &process;
        for (int i = 0; ancestor != nullptr && i < mostGenerations; ++i) {
            if (ancestor->isOwn || ancestor->entry.process == ownProcess_) {
                return true;
            }
            ancestor = known(ancestor->record.parent);
        }
        return false;
    }

    // Returns true if the identity hasn't changed since the last reading.
    bool identify(Known &process) {
        const bool isWatched = !process.record.isKernelThread &&
                               std::find(users_.begin(), users_.end(), process.record.user) != users_.end();
        ApplicationIdentity identity =
            isWatched ? identities_.identityOf(process.entry.process, process.record) : ApplicationIdentity();
        if (identity == process.identity) {
            return true;
        }
        leaveUnit(process.identity);
        process.identity = std::move(identity);
        process.isPart = isPart(process);
        if (!process.identity.unit.empty()) {
            ++unitSizes_[process.identity.unit];
        }
        return false;
    }

    [[nodiscard]] bool isPart(const Known &process) const {
        const ApplicationIdentity &identity = process.identity;
        if (!identity.unit.empty()) {
            return unitSizes_.contains(identity.unit);
        }
        const Known *parent = known(process.record.parent);
        if (parent == nullptr) {
            return false;
        }
        if (parent->identity.identifier == identity.identifier) {
            return true;
        }
        // Orphans are adopted by process 1 or by the user's service manager.
        const bool isOrphan = parent->entry.process == 1 || parent->record.name == "systemd";
        return isOrphan && endedIdentifiers_.contains(identity.identifier);
    }

    [[nodiscard]] const Known *known(std::int32_t process) const {
        const auto found = std::lower_bound(
            known_.begin(), known_.end(), process,
            [](const Known &one, std::int32_t number) { return one.entry.process < number; });
        return found != known_.end() && found->entry.process == process ? &*found : nullptr;
    }

    void tell(Known &process) {
        if (process.isTold || process.isPart || process.isOwn || process.identity.identifier.empty()) {
            return;
        }
        process.isTold = true;
        process.readings = 0;
        told_.push_back(process);
    }

    void leaveUnit(const ApplicationIdentity &identity) {
        const auto unit = unitSizes_.find(identity.unit);
        if (unit != unitSizes_.end() && --unit->second == 0) {
            unitSizes_.erase(unit);
        }
    }

    ProcessDirectory directory_;
    ProcessIdentities identities_;
    std::vector<std::uint32_t> users_;
    std::int32_t ownProcess_;
    bool isRead_ = false;
    std::vector<Known> known_; // sorted by number
    std::vector<Known> ended_; // since the last look
    std::unordered_set<std::string_view> endedIdentifiers_;
    std::vector<Known> told_;                        // by this look
    std::unordered_map<std::string, int> unitSizes_; // number of processes by unit
};

ProcessWatch::Places ProcessWatch::placesOfProcess(const IdentityAuthority &authority) {
    Places places{.applications = {},
                  .executables = {},
                  .users = {geteuid()},
                  .ownProcess = getpid(),
                  .unitOfProcess = unitOfProcess};
    for (const std::string &directory : UserDirectories::data()) {
        places.applications.push_back(directory + "/applications");
    }
    const char *path = std::getenv("PATH"); // NOLINT(concurrency-mt-unsafe): nothing changes the environment
    std::istringstream directories(path == nullptr ? "/usr/local/bin:/usr/bin:/bin" : path);
    for (std::string directory; std::getline(directories, directory, ':');) {
        places.executables.push_back(directory);
    }
    if (const auto console = authority.ids(authority.consoleUserName());
        console && console->userId != geteuid() && geteuid() == 0) {
        places.users.push_back(console->userId);
    }
    return places;
}

ProcessWatch::ProcessWatch(Places places) : table_(std::make_unique<Table>(std::move(places))) {}
ProcessWatch::~ProcessWatch() = default;

std::vector<RunningApplication> ProcessWatch::look() {
    return table_->look();
}

} // namespace velmar
