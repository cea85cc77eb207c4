// The store of variables: a write, a snapshot and a notice, each against the bare work below it.

#include "Median.h"

#include <Variables/ContentManager.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
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

// Prints the medians of rounds in which both are measured in turn.
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
    // Scattered over the map, each time another value than before.
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

void notice() {
    ContentManager manager;
    std::vector<std::shared_ptr<Observer>> observers(1000);
    using Function =
        std::function<void(std::string_view, const std::optional<std::string> &, const std::string &)>;
    std::vector<Function> functions;
    for (auto &observer : observers) {
        observer = std::make_shared<Observer>();
        manager.addObserver(UUID(), observer);
        functions.emplace_back(
            [length = std::size_t{0}](std::string_view name, const auto &, const auto &) mutable {
                length += name.size();
                benchmark::ClobberMemory();
            });
    }
    const std::optional<std::string> former("former");
    const std::string value("value");
    compare(
        "variable_notice_1000_observers", 100,
        [&](int call) { manager.updateVariable("A", call % 2 == 0 ? "even" : "odd", false); },
        [&](int) {
            for (const Function &function : functions) {
                function("A", former, value);
            }
        },
        "<=10");
}

} // namespace

int main() {
    // Counts are only atomic, as in the program, once there was another thread.
    std::thread([] {}).join();
    write();
    snapshot();
    notice();
}
