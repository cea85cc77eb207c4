#include "ChildProcess.h"

#include "DescriptorWatching.h"

#include <Dispatch/DispatchQueue.h>
#include <Foundation/LaunchEnvironment.h>

#include <cerrno>
#include <csignal>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" { // the libc header lacks it
#include <sys/pidfd.h>
}

namespace velmar {

namespace {

// File actions that pass only the standard streams on to the child.
class FileActions {
public:
    FileActions(int input, int output) {
        posix_spawn_file_actions_init(&actions_);
        note(input < 0 ? posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0)
                       : posix_spawn_file_actions_adddup2(&actions_, input, STDIN_FILENO));
        note(posix_spawn_file_actions_adddup2(&actions_, output, STDOUT_FILENO));
        note(posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1));
    }
    ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
    FileActions(const FileActions &) = delete;
    FileActions &operator=(const FileActions &) = delete;

    [[nodiscard]] const posix_spawn_file_actions_t *get() const noexcept { return &actions_; }
    [[nodiscard]] int error() const noexcept { return error_; }

private:
    void note(int error) noexcept {
        if (error != 0) {
            error_ = error;
        }
    }

    posix_spawn_file_actions_t actions_{};
    int error_ = 0;
};

// Spawn attributes: a new process group and default signal handling, regardless of the calling thread.
class Attributes {
public:
    Attributes() {
        sigset_t none;
        sigemptyset(&none);
        sigset_t all;
        sigfillset(&all);
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        posix_spawnattr_setpgroup(&attributes_, 0);
        posix_spawnattr_setflags(&attributes_,
                                 POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~Attributes() { posix_spawnattr_destroy(&attributes_); }
    Attributes(const Attributes &) = delete;
    Attributes &operator=(const Attributes &) = delete;

    [[nodiscard]] const posix_spawnattr_t *get() const noexcept { return &attributes_; }

private:
    posix_spawnattr_t attributes_{};
};

// Returns 0 or an errno.
int spawn(pid_t &id, const Process &process, int input, int output) {
    const FileActions actions(input, output);
    if (actions.error() != 0) {
        return actions.error();
    }
    const Attributes attributes;
    // posix_spawn takes non-const strings but doesn't modify them.
    std::vector<char *> arguments{const_cast<char *>(process.executablePath.c_str())};
    for (const std::string &argument : process.arguments) {
        arguments.push_back(const_cast<char *>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    return posix_spawn(&id, process.executablePath.c_str(), actions.get(), attributes.get(), arguments.data(),
                       LaunchEnvironment::get());
}

std::optional<DescriptorWatch> watchedEnd(pid_t id, const std::string &path) {
    Descriptor end(pidfd_open(id, 0));
    if (end) {
        return watched(std::move(end), path);
    }
    // ESRCH: SIGCHLD is ignored, so the kernel has already reaped the child.
    if (errno == ESRCH) {
        return std::nullopt;
    }
    throw ProcessError(ProcessError::NotLaunched{path, errno});
}

void reapWhenEnded(const DescriptorWatch &end, std::function<void()> function) {
    end.whenReadable([end, told = std::move(function)]() mutable {
        siginfo_t status{};
        // si_pid is 0 while the process still runs: the callback came early.
        if (waitid(P_PIDFD, static_cast<id_t>(end.number()), &status, WEXITED | WNOHANG) == 0 &&
            status.si_pid == 0) {
            reapWhenEnded(end, std::move(told));
        } else {
            told();
        }
    });
}

} // namespace

ChildProcess::ChildProcess(const Process &process, const Descriptor &input, const Descriptor &output) {
    const std::string &path = process.executablePath;
    process.checkLaunchable();
    if (const int code = spawn(id_, process, input.number(), output.number())) {
        // ENOENT is about the interpreter: checkLaunchable() has just found the program.
        if (code == ENOENT) {
            throw ProcessError(ProcessError::MissingInterpreter{path});
        }
        throw ProcessError(ProcessError::NotLaunched{path, code});
    }
    try {
        end_ = watchedEnd(id_, path);
    } catch (const ProcessError &) {
        // A process that isn't watched would never be reaped.
        kill(-id_, SIGKILL);
        waitpid(id_, nullptr, 0);
        throw;
    }
}

void ChildProcess::terminate() const {
    if (end_) {
        kill(-id_, SIGTERM);
    }
}

void ChildProcess::whenEnded(std::function<void()> function) const {
    if (!end_) {
        DispatchQueue::global().async(std::move(function));
        return;
    }
    reapWhenEnded(*end_, std::move(function));
}

} // namespace velmar
