#pragma once

#include <Foundation/UUID.h>
#include <Variables/ContentObserver.h>
#include <Variables/CopyOnWrite.h>

#include <boost/unordered/unordered_flat_map.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// The observers of a store, filed by the names of the variables that they observe. A change of one observer
/// touches the lists of its own names only. One thread at a time; the lists of a snapshot may be read on any.
class ObserversByName {
public:
    struct Entry {
        UUID identity;
        std::weak_ptr<ContentManagerObserver> observer;
    };
    /// In no fixed order.
    using Entries = CopyOnWrite<std::vector<Entry>>;

    /// The observers of one variable at one moment; later changes do not affect it. An identity occurs once.
    struct Snapshot {
        Entries byName;
        Entries ofEveryVariable;
    };

    [[nodiscard]] bool isEmpty() const noexcept { return registrations_.empty(); }
    [[nodiscard]] Snapshot observersOf(std::string_view variable) const;

    /// Replaces the observer of that identity, if there is one.
    void add(const UUID &identity, std::weak_ptr<ContentManagerObserver> observer, ObservedNames names);

    /// Replaces the names of an observer. Does nothing if there is no observer of that identity.
    void setNames(const UUID &identity, ObservedNames names);

    /// Does nothing if there is no observer of that identity.
    void remove(const UUID &identity);

private:
    struct Registration {
        std::weak_ptr<ContentManagerObserver> observer;
        ObservedNames names;
    };

    void file(const UUID &identity, const Registration &registration);
    void unfile(const UUID &identity, const Registration &registration);

    boost::unordered_flat_map<UUID, Registration, std::hash<UUID>> registrations_;
    boost::unordered_flat_map<std::string, Entries, VariableNameHash, VariableNameEqual>
        byName_; // None empty.
    Entries ofEveryVariable_;
    Entries none_; // Shared by all snapshots of variables without observers.
};

} // namespace velmar
