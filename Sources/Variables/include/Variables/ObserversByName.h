#pragma once

#include <Foundation/UUID.h>
#include <Variables/ContentObserver.h>
#include <Variables/CopyOnWrite.h>

#include <boost/unordered/unordered_flat_map.hpp>
#include <boost/unordered/unordered_flat_set.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// The observers of a store, indexed by the names of the variables that they observe. A change of one
/// observer affects the lists of its own names only. Not thread-safe; a snapshot may be read on any thread.
class ObserversByName {
public:
    struct Entry {
        UUID identity;
        std::weak_ptr<ContentManagerObserver> observer;
    };
    /// Observers in unspecified order.
    using Entries = CopyOnWrite<std::vector<Entry>>;

    /// The observers of one variable at the time of the call; later changes do not affect it. Each identity
    /// occurs once.
    struct Snapshot {
        Entries byName;
        Entries ofEveryVariable;
    };

    [[nodiscard]] bool isEmpty() const noexcept { return registrations_.empty(); }
    [[nodiscard]] Snapshot observersOf(std::string_view variable) const;

    /// Adds an observer. Replaces any observer of the same identity.
    void add(const UUID &identity, std::weak_ptr<ContentManagerObserver> observer, ObservedNames names);

    /// Replaces the names of an observer. Does nothing if there is no observer of that identity.
    void setNames(const UUID &identity, ObservedNames names);

    /// Removes an observer. Does nothing if there is no observer of that identity.
    void remove(const UUID &identity);

private:
    using Names = boost::unordered_flat_set<std::string, VariableNameHash, VariableNameEqual>;
    struct Registration {
        std::weak_ptr<ContentManagerObserver> observer;
        Names names;
        bool isOfEveryVariable = false;
    };

    boost::unordered_flat_map<UUID, Registration, std::hash<UUID>> registrations_;
    // Without empty lists.
    boost::unordered_flat_map<std::string, Entries, VariableNameHash, VariableNameEqual> byName_;
    Entries ofEveryVariable_;
    Entries none_; // Shared by the snapshots of variables without observers.
};

} // namespace velmar
