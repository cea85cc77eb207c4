#include <Variables/ContentManager.h>

#include <Base/Domain.h>
#include <Configuration/Configuration.h>
#include <Dispatch/UncaughtHandler.h>
#include <Foundation/UnicodeText.h>
#include <logger/Logger.h>

#include <fmt/format.h>

#include <atomic>
#include <utility>

namespace velmar {

namespace {

// Each store has its own range of versions, so that a cache can identify a state by its version alone.
NumberedVariables firstState() {
    static constinit std::atomic<std::uint64_t> stores{0};
    constexpr unsigned bitsOfCount = 40;
    return {{}, stores.fetch_add(1, std::memory_order_relaxed) << bitsOfCount};
}

} // namespace

ContentManager::ContentManager()
    : variables_(CopyOnWrite(firstState()),
                 std::string(Domain::bundleIdentifier) + ".ContentManager.variables"),
      observers_({}, std::string(Domain::bundleIdentifier) + ".ContentManager.observers") {}

void ContentManager::updateVariable(std::string_view name, std::string value, bool log) {
    const std::string_view bare = bareVariableName(name);
    const auto change = store(bare, value, Present::isReplaced);
    if (!change) {
        return;
    }
    if (log) {
        Logger::info([&] {
            return change->former
                       ? fmt::format("Successfully updated a variable [ {}: '{}' ]", bare, value)
                       : fmt::format("Successfully added a new variable [ {}: '{}' ]", bare, value);
        });
    }
    notifyObservers(bare, *change, value);
}

void ContentManager::updateVariables(const std::map<std::string, std::string> &variables) {
    for (const auto &[name, value] : variables) {
        updateVariable(name, value, true);
    }
}

void ContentManager::updatePlaceholder(GeneralSection::Placeholders placeholder, std::string value) {
    updateVariable(rawString(placeholder), std::move(value), false);
}

void ContentManager::registerVariables(const Configuration &configuration) {
    updateVariables(configuration._general()._variables().models());
    for (const std::string &name : configuration.declaredVariables) {
        if (const auto change = store(name, {}, Present::stays)) {
            notifyObservers(name, *change, {});
        }
    }
}

void ContentManager::resetVariables(const VariableNames &names, const ExpressionsBook<std::string> &book) {
    for (const std::string &name : names) {
        if (const auto model = book.models().find(name); model != book.models().end()) {
            updateVariable(name, model->second, false);
        }
    }
}

std::optional<ContentManager::Change> ContentManager::store(std::string_view name, const std::string &value,
                                                            Present present) {
    return variables_.mutate([&](CopyOnWrite<NumberedVariables> &state) -> std::optional<Change> {
        if (state.isShared()) {
            const auto known = state->variables.find(name);
            if (known != state->variables.end() && (present == Present::stays || known->second == value)) {
                return std::nullopt; // Avoids a copy of all variables.
            }
        }
        auto &[variables, version] = state.unshared();
        const auto found = variables.find(name);
        if (found == variables.end()) {
            variables.emplace(name, value);
            ++version;
            return Change{};
        }
        if (present == Present::stays || found->second == value) {
            return std::nullopt;
        }
        const bool isEqual = UnicodeText::isEqual(found->second, value);
        Change change{std::exchange(found->second, value)};
        ++version;
        return isEqual ? std::nullopt : std::optional(std::move(change));
    });
}

void ContentManager::notifyObservers(std::string_view name, const Change &change,
                                     const std::string &value) const {
    if (!hasObservers_.load(std::memory_order_relaxed)) {
        return;
    }
    // Taken after the write: an observer added later reads the new value.
    const ObserversByName::Snapshot observers =
        observers_.withValue([name](const ObserversByName &table) { return table.observersOf(name); });
    for (const ObserversByName::Entries *const entries : {&observers.byName, &observers.ofEveryVariable}) {
        for (const auto &[identity, entry] : **entries) {
            if (const auto observer = entry.lock()) {
                runReportingUncaught(observers_.label(),
                                     [&] { observer->variableDidChange(name, change.former, value); });
            }
        }
    }
}

VariablesSnapshot ContentManager::variables() const {
    return VariablesSnapshot(variables_.value());
}

void ContentManager::addObserver(const UUID &identity, std::weak_ptr<ContentManagerObserver> observer,
                                 ObservedNames names) {
    observers_.mutate([&](ObserversByName &table) {
        table.add(identity, std::move(observer), std::move(names));
        hasObservers_ = true;
    });
}

void ContentManager::setObservedNames(const UUID &identity, ObservedNames names) {
    observers_.mutate([&](ObserversByName &table) { table.setNames(identity, std::move(names)); });
}

void ContentManager::removeObserver(const UUID &identity) {
    observers_.mutate([&](ObserversByName &table) {
        table.remove(identity);
        hasObservers_ = !table.isEmpty();
    });
}

} // namespace velmar
