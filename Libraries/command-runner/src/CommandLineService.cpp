#include <command-runner/CommandLineService.h>

#include <Dispatch/DispatchQueue.h>
#include <Dispatch/UncaughtHandler.h>
#include <Foundation/ProcessChain.h>
#include <Foundation/ProcessError.h>
#include <Foundation/RegularExpression.h>
#include <Foundation/UnicodeText.h>
#include <command-runner/CompletionError.h>
#include <logger/Logger.h>

#include "RawCommand.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <string_view>
#include <utility>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace velmar::CommandLineService {

namespace {

// Longer than any path.
constexpr std::size_t maximumPath = 64 * 1024;

bool endsWithCharacter(std::string_view bytes) {
    for (std::size_t length = 1; length <= std::min<std::size_t>(bytes.size(), 4); ++length) {
        if (UnicodeText::isValidUtf8(bytes.substr(bytes.size() - length))) {
            return true;
        }
    }
    return false;
}

// Returns the trimmed text of an output, or NilString.
Result<std::string> textOf(ProcessOutput output, const Process &process) {
    std::string_view bytes = output.bytes;
    if (output.isCut) {
        Logger::warning([&] {
            return fmt::format("The output of the process `{}` was cut at {} MiB", process.description(),
                               bytes.size() >> 20);
        });
        // The cut may split a character of up to four bytes.
        for (int count = 0; count < 3 && !endsWithCharacter(bytes); ++count) {
            bytes.remove_suffix(1);
        }
    }
    if (!UnicodeText::isValidUtf8(bytes)) {
        return failure(CompletionError(CompletionError::NilString{}));
    }
    const std::string_view text = UnicodeText::trimmed(bytes);
    const auto start = static_cast<std::size_t>(text.data() - output.bytes.data());
    output.bytes.resize(start + text.size());
    output.bytes.erase(0, start);
    return std::move(output.bytes);
}

// Converts the current exception to an Unexpected error.
CompletionError unexpectedError() {
    return CompletionError::Unexpected{std::string(velmar::textOf(std::current_exception()))};
}

// The processes of one call, from looking up their names to the completion. Kept alive by the callbacks of
// its next step.
class Execution : public std::enable_shared_from_this<Execution> {
public:
    enum class Kind { attached, detached };

    Execution(std::vector<Process> processes, Completion completion, Kind kind = Kind::attached,
              std::function<void()> launched = nullptr)
        : processes_(std::move(processes)),
          completion_(std::move(completion)),
          kind_(kind),
          launched_(std::move(launched)) {}

    void begin() {
        attempt(processes_.front(), [&] { proceedFrom(0); });
    }

    // Runs a step for a process. Returns false if it threw, which ends the execution.
    template <class Step>
    bool attempt(const Process &process, const Step &step) {
        try {
            step();
            return true;
        } catch (const ProcessError &error) {
            fail(process, error);
        } catch (...) {
            // The queue reports exceptions of the completion.
            if (isComplete_) {
                throw;
            }
            fail(process, unexpectedError());
        }
        return false;
    }

private:
    // Looks up bare names from `index` on, one after the other, then launches the processes.
    void proceedFrom(std::size_t index) {
        while (index < processes_.size() && processes_[index].executablePath.find('/') != std::string::npos) {
            ++index;
        }
        if (index < processes_.size()) {
            lookUp(index);
        } else {
            launch();
        }
    }

    void lookUp(std::size_t index) {
        attempt(processes_[index], [&] {
            ProcessChain chain;
            chain.launch({"/usr/bin/which", {processes_[index].executablePath}});
            chain.readOutput(maximumPath, [self = shared_from_this(), index](const ProcessOutput &output) {
                self->attempt(self->processes_[index], [&] { self->resolve(index, output); });
            });
        });
    }

    void resolve(std::size_t index, const ProcessOutput &output) {
        Process &process = processes_[index];
        const std::size_t start = output.bytes.find_first_not_of('\n');
        const std::size_t last = output.bytes.find_last_not_of('\n');
        if (start == std::string::npos) {
            fail(process, ProcessError(ProcessError::NoSuchCommand{process.executablePath}));
            return;
        }
        process.executablePath = output.bytes.substr(start, last + 1 - start);
        // PATH may contain the current directory.
        if (process.executablePath.find('/') == std::string::npos) {
            process.executablePath.insert(0, "./");
        }
        proceedFrom(index + 1);
    }

    void launch() {
        for (const Process &process : processes_) {
            if (!attempt(process, [&] { process.checkLaunchable(); })) {
                return;
            }
        }
        ProcessChain chain;
        for (const Process &process : processes_) {
            const auto launched = [&] {
                if (kind_ == Kind::detached) {
                    chain.launchIntoFile(process, maximumOutput);
                } else {
                    chain.launch(process);
                }
            };
            if (!attempt(process, launched)) {
                return;
            }
        }
        const bool isLaunched = attempt(processes_.back(), [&] {
            chain.readOutput(maximumOutput, [self = shared_from_this()](ProcessOutput output) {
                const Process &last = self->processes_.back();
                self->attempt(last, [&] { self->complete(textOf(std::move(output), last)); });
            });
        });
        if (isLaunched && launched_) {
            launched_();
        }
    }

    template <class Family>
    void fail(const Process &process, const Family &error) {
        runReportingUncaught("CommandLineService", [&] {
            Logger::error([&] {
                return fmt::format("Error while executing the process `{}`. {}", process.description(),
                                   error.errorDescription());
            });
        });
        complete(failure(error));
    }

    void complete(Result<std::string> result) {
        isComplete_ = true;
        if (completion_) {
            completion_(std::move(result));
        }
    }

    std::vector<Process> processes_;
    Completion completion_;
    Kind kind_;
    std::function<void()> launched_;
    bool isComplete_ = false;
};

Result<RawCommand> parsed(std::string_view text) {
    try {
        return RawCommand(text);
    } catch (const CompletionError &error) {
        return failure(error);
    } catch (const RegularExpressionError &error) {
        return failure(error);
    } catch (...) {
        return failure(unexpectedError());
    }
}

Process throughEnv(const Process &script) {
    Process env{"/usr/bin/env", {}};
    // env would treat a path with "=" as a variable assignment.
    if (script.executablePath.find('=') != std::string::npos) {
        env.arguments = {"/bin/sh", "-c", R"(exec "$0" "$@")"};
    }
    env.arguments.push_back(script.executablePath);
    env.arguments.insert(env.arguments.end(), script.arguments.begin(), script.arguments.end());
    return env;
}

} // namespace

// All work runs on the pool: the caller doesn't wait for a launch, and no completion precedes the return of
// the call.

void execute(std::string rawCommand, Completion completion) {
    DispatchQueue::global().async([text = std::move(rawCommand), completion = std::move(completion)] {
        Result<RawCommand> command = parsed(text);
        if (!command) {
            if (completion) {
                completion(tl::unexpected(command.error()));
            }
            return;
        }
        if (!command->leftOut.empty()) {
            Logger::warning([&] {
                return fmt::format("The command `{}` is executed without `{}`: quotes enclose whole words",
                                   text, fmt::join(command->leftOut, "` and `"));
            });
        }
        std::make_shared<Execution>(std::move(command->processes), completion)->begin();
    });
}

void execute(std::string command, std::vector<std::string> arguments, Completion completion) {
    const auto execution = std::make_shared<Execution>(
        std::vector{Process{std::move(command), std::move(arguments)}}, std::move(completion));
    DispatchQueue::global().async([execution] { execution->begin(); });
}

namespace {

void executeScript(std::string path, std::vector<std::string> arguments, Execution::Kind kind,
                   std::function<void()> launched, Completion completion) {
    // "./" prevents a search and keeps the path from being read as an option.
    if (!path.starts_with('/')) {
        path.insert(0, "./");
    }
    DispatchQueue::global().async([script = Process{std::move(path), std::move(arguments)}, kind,
                                   launched = std::move(launched), completion = std::move(completion)] {
        const auto execution =
            std::make_shared<Execution>(std::vector{throughEnv(script)}, completion, kind, launched);
        if (execution->attempt(script, [&] { script.checkLaunchable(); })) {
            execution->begin();
        }
    });
}

} // namespace

void executeScript(std::string path, std::vector<std::string> arguments, Completion completion) {
    executeScript(std::move(path), std::move(arguments), Execution::Kind::attached, nullptr,
                  std::move(completion));
}

void executeDetachedScript(std::string path, std::vector<std::string> arguments,
                           std::function<void()> launched, Completion completion) {
    executeScript(std::move(path), std::move(arguments), Execution::Kind::detached, std::move(launched),
                  std::move(completion));
}

} // namespace velmar::CommandLineService
