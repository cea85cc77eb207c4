// Benchmark of the watch for started applications, with 300 additional processes: the load of one core by two
// looks per second without new processes. The reference reads the state of every process.
#include "Median.h"

#include <System/ProcessWatch.h>
#include <System/SystemIdentityAuthority.h>

#include <fmt/core.h>

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <dirent.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace velmar;

constexpr int addedProcesses = 300;
constexpr int rounds = 101;
constexpr double looksPerSecond = 2;

/// Starts child processes that do nothing and end with this process.
class IdleProcesses {
public:
    IdleProcesses() {
        for (int i = 0; i < addedProcesses; ++i) {
            const pid_t child = fork();
            if (child < 0) {
                throw std::runtime_error("no process more");
            }
            if (child == 0) {
                prctl(PR_SET_PDEATHSIG, SIGKILL);
                for (;;) {
                    pause();
                }
            }
            children_.push_back(child);
        }
    }
    ~IdleProcesses() {
        for (const pid_t child : children_) {
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
        }
    }
    IdleProcesses(const IdleProcesses &) = delete;
    IdleProcesses &operator=(const IdleProcesses &) = delete;

private:
    std::vector<pid_t> children_;
};

/// Reads the state of every process and returns their number.
int readEveryState() {
    int count = 0;
    DIR *directory = opendir("/proc");
    while (const dirent *entry = readdir(directory)) {
        if (entry->d_name[0] >= '0' && entry->d_name[0] <= '9') {
            std::ifstream file("/proc/" + std::string(static_cast<const char *>(entry->d_name)) + "/stat");
            std::string line;
            count += std::getline(file, line) ? 1 : 0;
        }
    }
    closedir(directory);
    return count;
}

// Returns the load in percent of a core if the function runs `looksPerSecond` times per second.
template <class Function>
double load(Function function) {
    const auto seconds = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double start = seconds();
    function();
    return (seconds() - start) * looksPerSecond * 100;
}

} // namespace

int main() {
    const IdleProcesses idle;
    ProcessWatch watch(ProcessWatch::placesOfProcess(SystemIdentityAuthority::shared()));
    std::vector<double> ours;
    std::vector<double> reference;
    int processes = 0;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(load([&] { static_cast<void>(watch.look()); }));
        reference.push_back(load([&] { processes = readEveryState(); }));
    }
    const double our = median(ours);
    const double their = median(reference);
    fmt::print("running_applications ours={:.4f}% reference={:.4f}% ratio={:.2f} goal=<=0.5% processes={}\n",
               our, their, our / their, processes);
    return processes > addedProcesses ? EXIT_SUCCESS : EXIT_FAILURE;
}
