// Benchmark of `velmarctl check` on the largest example, as a process. The reference is the time of three
// empty processes plus 10 ms.
#include "Median.h"

#include <fmt/core.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int rounds = 51;

std::string largestExample() {
    const auto size = [](const auto &entry) { return entry.file_size(); };
    const std::vector<std::filesystem::directory_entry> examples{
        std::filesystem::directory_iterator(VELMAR_SOURCE_DIR "/Examples"), {}};
    return std::ranges::max(examples, {}, size).path();
}

double millisecondsOf(std::vector<std::string> command) {
    std::vector<char *> arguments;
    for (std::string &argument : command) {
        arguments.push_back(argument.data());
    }
    arguments.push_back(nullptr);
    ::posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    ::pid_t child = 0;
    const auto start = Clock::now();
    const int error = ::posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    int status = 0;
    if (error != 0 || ::waitpid(child, &status, 0) != child || status != 0) {
        throw std::system_error(error, std::generic_category(), command[0] + " failed");
    }
    const auto end = Clock::now();
    ::posix_spawn_file_actions_destroy(&actions);
    return std::chrono::duration<double, std::milli>(end - start).count();
}

} // namespace

int main() {
    std::vector<double> ours;
    std::vector<double> empty;
    const std::string example = largestExample();
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(millisecondsOf({VELMAR_TOOL, "check", "--no-admission", example}));
        empty.push_back(millisecondsOf({"/bin/true"}));
    }
    const double reference = 3 * median(empty) + 10;
    fmt::print("check ours={:.3f} reference={:.3f} ratio={:.3f} goal=1.0\n", median(ours), reference,
               median(ours) / reference);
}
