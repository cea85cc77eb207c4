// Benchmarks of a message on the caller's thread. The reference of a message that no destination logs is an
// empty call; that of a logged message is the formatting of the same line into a string.

#include "Median.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

#include <benchmark/benchmark.h>
#include <fmt/chrono.h>
#include <fmt/format.h>

#include <logger/FileDestination.h>
#include <logger/ScopedDestinations.h>
#include <logger/VelmarLogDestination.h>

namespace {

using namespace velmar;
using Clock = std::chrono::steady_clock;

constexpr int rounds = 101;
constexpr std::string_view path = "/Library/Managed Preferences/Velmar.plist";

[[gnu::noinline]] void emptyCall() {
    benchmark::ClobberMemory();
}

std::string message() {
    return fmt::format("Found configuration file at {}", path);
}

void formatLine() {
    std::string line =
        fmt::format("[Velmar] {:%H:%M:%S} ℹ️ > {} ", fmt::localtime(std::time(nullptr)), message());
    benchmark::DoNotOptimize(line);
}

std::shared_ptr<BaseDestination> destination(const char *file) {
    return std::make_shared<VelmarLogDestination>(
        std::make_unique<FileDestination>(LogFileSettings{.logFileURL = file}), "Velmar");
}

// Returns the mean time of one call in nanoseconds.
template <class Function>
double nanoseconds(int calls, Function function) {
    const auto start = Clock::now();
    for (int i = 0; i < calls; ++i) {
        function();
    }
    return std::chrono::duration<double, std::nano>(Clock::now() - start).count() / calls;
}

// Prints the medians of rounds that measure both functions alternately. `settle` runs after each measurement
// of `ours` and is not timed.
template <class Ours, class Reference, class Settle>
void compare(const char *name, int calls, Ours ours, Reference reference, Settle settle, const char *goal) {
    std::vector<double> mine;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        mine.push_back(nanoseconds(calls, ours));
        settle();
        theirs.push_back(nanoseconds(calls, reference));
    }
    const double our = median(mine);
    const double their = median(theirs);
    std::printf("%s ours=%.1fns reference=%.1fns ratio=%.2f goal=%s\n", name, our, their, our / their, goal);
}

} // namespace

int main() {
    const auto log = [] { Logger::info([] { return message(); }); };
    {
        const ScopedDestinations none;
        compare(
            "log_not_logged", 100'000, log, emptyCall, [] {}, "<=20ns");
    }
    const auto drain = [] { Logger::flush(std::chrono::seconds(60)); };
    // The next call then has cold caches, like the reference, and must wake the threads of the queues.
    const auto fallAsleep = [&] {
        drain();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    };
    {
        // The bursts are smaller than the queue's capacity; drain() writes them between the rounds.
        const ScopedDestinations one({destination("/tmp/velmar-bench-1.log")});
        compare("log_logged", 1000, log, formatLine, drain, "<=2000ns");
        compare("log_logged_alone", 1, log, formatLine, fallAsleep, "none");
    }
    {
        const ScopedDestinations three({destination("/tmp/velmar-bench-1.log"),
                                        destination("/tmp/velmar-bench-2.log"),
                                        destination("/tmp/velmar-bench-3.log")});
        compare("log_logged_three_destinations", 1000, log, formatLine, drain, "<=2000ns");
        compare("log_logged_alone_three_destinations", 1, log, formatLine, fallAsleep, "none");
    }
    for (const char *file :
         {"/tmp/velmar-bench-1.log", "/tmp/velmar-bench-2.log", "/tmp/velmar-bench-3.log"}) {
        std::remove(file);
    }
}
