#pragma once

#include <istream>
#include <ostream>

namespace CLI {
class App;
}

namespace velmar {

class IdentityAuthority;

/// What the program ends with.
enum class ExitStatus {
    succeeded = 0,
    refused = 1, ///< The application would refuse a file, or an expression has no value.
    failed = 2,  ///< Used wrongly, or the output could not be written.
};

/// The environment that a command runs in.
struct CommandEnvironment {
    const IdentityAuthority &authority;
    std::istream &in;
    std::ostream &out; ///< Results.
    std::ostream &err; ///< Complaints.
};

/// One of the program's commands. It declares itself on the command line that it is made with, whose parser
/// fills its options: both stay where they are until it has run.
class Command {
public:
    Command(const Command &) = delete;
    Command &operator=(const Command &) = delete;
    virtual ~Command() = default;

    /// Whether the command line, once parsed, names this command.
    [[nodiscard]] bool isNamed() const;

    /// Never throws for what a file or an input holds.
    [[nodiscard]] virtual ExitStatus run(const CommandEnvironment &environment) const = 0;

protected:
    Command(CLI::App &commandLine, const char *name, const char *description);

    [[nodiscard]] CLI::App &options() { return *options_; }

private:
    CLI::App *options_; // Owned by the command line.
};

} // namespace velmar
