// Benchmarks of the store of variables: writes, snapshots, notifications and observers. The references do the
// same work without the store.

#include "Median.h"

#include <Variables/ContentManager.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

namespace {

using namespace velmar;
using Clock = std::chrono::steady_clock;

constexpr int rounds = 101;

template <class Function>
double nanoseconds(int calls, Function function) {
    const auto start = Clock::now();
    for (int call = 0; call < calls; ++call) {
        function(call);
    }
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / calls;
}

// Prints the medians of rounds that measure both functions alternately.
template <class Ours, class Reference>
void compare(const char *name, int calls, Ours ours, Reference reference, const char *goal) {
    std::vector<double> mine;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        mine.push_back(nanoseconds(calls, ours));
        theirs.push_back(nanoseconds(calls, reference));
    }
    const double our = median(mine);
    const double their = median(theirs);
    std::printf("%s ours=%.1fns reference=%.1fns ratio=%.4f goal=%s\n", name, our, their, our / their, goal);
}

std::vector<std::string> names(std::size_t count) {
    std::vector<std::string> all;
    for (std::size_t i = 0; i < count; ++i) {
        all.push_back(fmt::format("VARIABLE_{}", i));
    }
    return all;
}

Variables variablesOf(const std::vector<std::string> &all) {
    Variables variables;
    for (const std::string &name : all) {
        variables.emplace(name, "value");
    }
    return variables;
}

void fill(ContentManager &manager, const std::vector<std::string> &all) {
    for (const std::string &name : all) {
        manager.updateVariable(name, "value", false);
    }
}

void write() {
    const std::vector<std::string> all = names(10'000);
    ContentManager manager;
    fill(manager, all);
    Variables variables = variablesOf(all);
    std::mutex mutex;
    // The names are scattered over the map, and each write changes the value.
    const auto nameOf = [&](int call) -> std::string_view {
        return all[static_cast<std::size_t>(call) * 7919U % all.size()];
    };
    int ourRun = 0;
    int theirRun = 0;
    compare(
        "variable_write", 10'000,
        [&](int call) {
            ourRun += call == 0;
            manager.updateVariable(nameOf(call), ourRun % 2 == 0 ? "even" : "odd", false);
        },
        [&](int call) {
            theirRun += call == 0;
            const std::lock_guard lock(mutex);
            variables.find(nameOf(call))->second = std::string(theirRun % 2 == 0 ? "even" : "odd");
        },
        "<=2");
}

void snapshot() {
    const std::vector<std::string> all = names(200);
    ContentManager manager;
    fill(manager, all);
    const Variables variables = variablesOf(all);
    compare(
        "variable_snapshot", 1000, [&](int) { benchmark::DoNotOptimize(manager.variables()); },
        [&](int) {
            const Variables copy = variables;
            benchmark::DoNotOptimize(copy.size());
        },
        "<=0.01");
}

class Observer final : public ContentObserver {
public:
    void variableDidChange(std::string_view name, const std::optional<std::string> &,
                           const std::string &) override {
        length += name.size();
        benchmark::ClobberMemory();
    }
    std::size_t length = 0;
};

// A store with 1,000 observers. Each observes a separate name and the name "ALL".
struct Observed {
    Observed() {
        for (std::size_t i = 0; i < observers.size(); ++i) {
            observers[i] = std::make_shared<Observer>();
            manager.addObserver(identities[i], observers[i], VariableNames{own[i], "ALL"});
        }
    }

    ContentManager manager;
    std::vector<UUID> identities = std::vector<UUID>(1000);
    std::vector<std::string> own = names(1000);
    std::vector<std::shared_ptr<Observer>> observers = std::vector<std::shared_ptr<Observer>>(1000);
};

void notice() {
    Observed observed;
    using Function =
        std::function<void(std::string_view, const std::optional<std::string> &, const std::string &)>;
    std::vector<Function> functions;
    for (std::size_t i = 0; i < observed.observers.size(); ++i) {
        functions.emplace_back(
            [length = std::size_t{0}](std::string_view name, const auto &, const auto &) mutable {
                length += name.size();
                benchmark::ClobberMemory();
            });
    }
    const std::optional<std::string> former("former");
    const std::string value("value");
    const auto reference = [&](int) {
        for (const Function &function : functions) {
            function("A", former, value);
        }
    };
    const auto writeOf = [&](std::string_view name) {
        return [&observed, name](int call) {
            observed.manager.updateVariable(name, call % 2 == 0 ? "even" : "odd", false);
        };
    };
    compare("variable_notice_1_of_1000_observers", 100, writeOf(observed.own[500]), reference, "<2");
    compare("variable_notice_1000_observers", 100, writeOf("ALL"), reference, "<10");
}

// The reference is a copy of a table of all observers.
void replacement() {
    Observed observed;
    std::vector<ObserversByName::Entry> table;
    for (std::size_t i = 0; i < observed.observers.size(); ++i) {
        table.push_back({observed.identities[i], observed.observers[i]});
    }
    const auto reference = [&](int) {
        const std::vector<ObserversByName::Entry> copy = table;
        benchmark::DoNotOptimize(copy.data());
    };
    compare(
        "variable_names_replaced_of_1_of_1000_observers", 100,
        [&](int call) {
            const std::size_t i = static_cast<std::size_t>(call / 2 * 37) % observed.own.size();
            const std::string name = call % 2 == 0 ? "OTHER" : observed.own[i];
            observed.manager.setObservedNames(observed.identities[i], VariableNames{name, "ALL"});
        },
        reference, "<=1");
}

// A slide with 500 components. The reference keeps the same observers by name in a map without a lock.
void slide() {
    ContentManager manager;
    std::vector<UUID> identities(500);
    const std::vector<std::string> own = names(500);
    const auto observer = std::make_shared<Observer>();
    compare(
        "variable_observers_500_come_and_go", 1,
        [&](int) {
            for (std::size_t i = 0; i < identities.size(); ++i) {
                manager.addObserver(identities[i], observer, VariableNames{});
                manager.setObservedNames(identities[i], VariableNames{own[i], "ALL"});
            }
            for (const UUID &identity : identities) {
                manager.removeObserver(identity);
            }
        },
        [&](int) {
            std::multimap<std::string, std::weak_ptr<Observer>> byName;
            for (const std::string &name : own) {
                byName.emplace(name, observer);
                byName.emplace("ALL", observer);
            }
            benchmark::DoNotOptimize(byName.size());
        },
        "<=10");
}

} // namespace

int main() {
    // libstdc++ counts references atomically only after a second thread was started, as in the program.
    std::thread([] {}).join();
    write();
    snapshot();
    notice();
    replacement();
    slide();
}
