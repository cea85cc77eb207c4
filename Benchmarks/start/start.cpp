// Benchmark of the time from exec to the first paint of the example, and of the resident memory after it. The
// reference is a bare window. Both programs print a line after their first paint and are started alternately.
// Needs root, for a private /Library, and a display.

#include <fmt/core.h>

#include <fcntl.h>
#include <sched.h>
#include <spawn.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int rounds = 21;

void check(bool succeeded, const char *what) {
    if (!succeeded) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

/// Mounts a private /Library with the example for this process and its children, and sets their home there.
void preparePlaces() {
    check(::unshare(CLONE_NEWNS) == 0, "unshare");
    check(::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0, "mount /");
    std::filesystem::create_directory("/Library");
    check(::mount("none", "/Library", "tmpfs", 0, nullptr) == 0, "mount /Library");
    const std::filesystem::path place = "/Library/Application Support/Velmar";
    std::filesystem::create_directories(place);
    std::filesystem::copy_file(VELMAR_SOURCE_DIR "/Examples/welcome.plist", place / "Velmar.plist");
    using std::filesystem::perms;
    std::filesystem::permissions(place / "Velmar.plist", perms::owner_read | perms::owner_write |
                                                             perms::group_read | perms::others_read);
    std::filesystem::create_directory("/Library/home");
    ::setenv("HOME", "/Library/home", 1);
    ::unsetenv("XDG_CONFIG_HOME");
}

struct Measurement {
    double milliseconds;
    double megabytes;
};

double residentMegabytes(pid_t process) {
    std::ifstream status(fmt::format("/proc/{}/status", process));
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) {
            return std::stod(line.substr(6)) / 1024;
        }
    }
    throw std::runtime_error("no VmRSS");
}

Measurement measure(const std::string &program) {
    std::array<int, 2> ends{};
    check(::pipe2(ends.data(), O_CLOEXEC) == 0, "pipe2");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    std::string name = program;
    std::array<char *, 2> arguments{name.data(), nullptr};
    pid_t process = 0;
    const auto start = Clock::now();
    errno = ::posix_spawn(&process, program.c_str(), &actions, nullptr, arguments.data(), environ);
    check(errno == 0, program.c_str());
    ::close(ends[1]);
    posix_spawn_file_actions_destroy(&actions);

    std::string output;
    std::array<char, 4096> buffer{};
    while (output.find("First paint") == std::string::npos) {
        const ssize_t count = ::read(ends[0], buffer.data(), buffer.size());
        if (count <= 0) {
            throw std::runtime_error(program + " ended without a paint: " + output);
        }
        output.append(buffer.data(), static_cast<std::size_t>(count));
    }
    const std::chrono::duration<double, std::milli> time = Clock::now() - start;
    std::this_thread::sleep_for(300ms); // Includes the work after the first paint.
    const double memory = residentMegabytes(process);
    ::kill(process, SIGTERM);
    ::waitpid(process, nullptr, 0);
    ::close(ends[0]);
    return {time.count(), memory};
}

double median(std::vector<Measurement> &measurements, double Measurement::*value) {
    std::ranges::nth_element(measurements, measurements.begin() + rounds / 2, {}, value);
    return measurements[rounds / 2].*value;
}

void report(const char *name, std::vector<Measurement> &ours, std::vector<Measurement> &reference,
            double Measurement::*value, double goal) {
    const double mine = median(ours, value);
    const double theirs = median(reference, value);
    fmt::print("{} ours={:.1f} reference={:.1f} ratio={:.2f} goal={:.2f}\n", name, mine, theirs,
               mine / theirs, goal);
}

} // namespace

int main() {
    try {
        preparePlaces();
        // Warm up: loads the files of both programs into memory.
        measure(VELMAR_PROGRAM);
        measure(VELMAR_REFERENCE);
        std::vector<Measurement> ours;
        std::vector<Measurement> reference;
        for (int round = 0; round < rounds; ++round) {
            ours.push_back(measure(VELMAR_PROGRAM));
            reference.push_back(measure(VELMAR_REFERENCE));
        }
        report("start", ours, reference, &Measurement::milliseconds, 1.35);
        report("start-memory", ours, reference, &Measurement::megabytes, 1.5);
        return EXIT_SUCCESS;
    } catch (const std::exception &error) {
        fmt::print(stderr, "start: {}\n", error.what());
        return EXIT_FAILURE;
    }
}
