#pragma once

#include <istream>
#include <ostream>

namespace CLI {
class App;
}

namespace velmar {

class IdentityAuthority;

/// The exit status of the program.
enum class ExitStatus {
    succeeded = 0,
    refused = 1, ///< The application would refuse a file, or an expression has no value.
    failed = 2,  ///< Wrong usage, or the output could not be written.
};

/// The environment that a command runs in.
struct CommandEnvironment {
    const IdentityAuthority &authority;
    std::istream &in;
    std::ostream &out; ///< Results.
    std::ostream &err; ///< Errors and warnings.
};

/// A command of the program. The constructor adds the command to the given command line, whose parser fills
/// the command's options: neither may be moved or destroyed before the command has run.
class Command {
public:
    Command(const Command &) = delete;
    Command &operator=(const Command &) = delete;
    virtual ~Command() = default;

    /// Returns whether the parsed command line names this command.
    [[nodiscard]] bool isNamed() const;

    /// Runs the command. Doesn't throw because of file or input content.
    [[nodiscard]] virtual ExitStatus run(const CommandEnvironment &environment) const = 0;

protected:
    Command(CLI::App &commandLine, const char *name, const char *description);

    [[nodiscard]] CLI::App &options() { return *options_; }

private:
    CLI::App *options_; // Owned by the command line.
};

} // namespace velmar
