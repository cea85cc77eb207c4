#include <Variables/ObserversByName.h>

#include <algorithm>
#include <utility>

namespace velmar {

namespace {

using Entries = ObserversByName::Entries;

void erase(Entries &entries, const UUID &identity) {
    const auto found = std::ranges::find(*entries, identity, &ObserversByName::Entry::identity);
    if (found == entries->end()) {
        return;
    }
    const auto position = found - entries->begin();
    std::vector<ObserversByName::Entry> &list = entries.unshared();
    std::swap(list[static_cast<std::size_t>(position)], list.back());
    list.pop_back();
}

} // namespace

ObserversByName::Snapshot ObserversByName::observersOf(std::string_view variable) const {
    const auto found = byName_.find(variable);
    return {found != byName_.end() ? found->second : none_, ofEveryVariable_};
}

void ObserversByName::add(const UUID &identity, std::weak_ptr<ContentManagerObserver> observer,
                          ObservedNames names) {
    remove(identity);
    const auto added =
        registrations_.emplace(identity, Registration{std::move(observer), std::move(names)}).first;
    file(identity, added->second);
}

void ObserversByName::setNames(const UUID &identity, ObservedNames names) {
    const auto found = registrations_.find(identity);
    if (found == registrations_.end() || found->second.names == names) {
        return;
    }
    unfile(identity, found->second);
    found->second.names = std::move(names);
    file(identity, found->second);
}

void ObserversByName::remove(const UUID &identity) {
    const auto found = registrations_.find(identity);
    if (found == registrations_.end()) {
        return;
    }
    unfile(identity, found->second);
    registrations_.erase(found);
}

void ObserversByName::file(const UUID &identity, const Registration &registration) {
    if (!registration.names) {
        ofEveryVariable_.unshared().push_back({identity, registration.observer});
        return;
    }
    for (const std::string &name : *registration.names) {
        Entries &entries = byName_[name];
        // Equivalent spellings of a name share a list.
        if (entries->empty() || entries->back().identity != identity) {
            entries.unshared().push_back({identity, registration.observer});
        }
    }
}

void ObserversByName::unfile(const UUID &identity, const Registration &registration) {
    if (!registration.names) {
        erase(ofEveryVariable_, identity);
        return;
    }
    for (const std::string &name : *registration.names) {
        const auto found = byName_.find(name);
        if (found == byName_.end()) {
            continue; // Already erased under an equivalent spelling.
        }
        erase(found->second, identity);
        if (found->second->empty()) {
            byName_.erase(found);
        }
    }
}

} // namespace velmar
