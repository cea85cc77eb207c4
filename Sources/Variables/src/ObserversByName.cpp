#include <Variables/ObserversByName.h>

#include <algorithm>
#include <utility>

namespace velmar {

namespace {

using Entries = ObserversByName::Entries;

// The entries must contain the identity.
void erase(Entries &entries, const UUID &identity) {
    std::vector<ObserversByName::Entry> &list = entries.unshared();
    std::swap(*std::ranges::find(list, identity, &ObserversByName::Entry::identity), list.back());
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
    registrations_.emplace(identity, Registration{std::move(observer), {}});
    setNames(identity, std::move(names));
}

void ObserversByName::setNames(const UUID &identity, ObservedNames names) {
    const auto found = registrations_.find(identity);
    if (found == registrations_.end()) {
        return;
    }
    Registration &registration = found->second;
    const Entry entry{identity, registration.observer};
    const Names former =
        std::exchange(registration.names, names ? Names(names->begin(), names->end()) : Names());
    for (const std::string &name : former) {
        if (!registration.names.contains(name)) {
            const auto list = byName_.find(name);
            erase(list->second, identity);
            if (list->second->empty()) {
                byName_.erase(list);
            }
        }
    }
    for (const std::string &name : registration.names) {
        if (!former.contains(name)) {
            byName_[name].unshared().push_back(entry);
        }
    }
    const bool wasOfEveryVariable = std::exchange(registration.isOfEveryVariable, !names);
    if (wasOfEveryVariable && names) {
        erase(ofEveryVariable_, identity);
    } else if (!wasOfEveryVariable && !names) {
        ofEveryVariable_.unshared().push_back(entry);
    }
}

void ObserversByName::remove(const UUID &identity) {
    setNames(identity, VariableNames());
    registrations_.erase(identity);
}

} // namespace velmar
