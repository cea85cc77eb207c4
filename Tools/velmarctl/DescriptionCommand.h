#pragma once

#include <Command.h>

#include <ostream>
#include <string>

namespace velmar {

/// A command that prints what a configuration may hold, in one form: "velmarctl schema", "velmarctl
/// reference".
class DescriptionCommand final : public Command {
public:
    using Write = void (*)(std::ostream &out);

    DescriptionCommand(CLI::App &commandLine, const char *name, const char *purpose, Write write)
        : Command(commandLine, name, purpose), write_(write) {}

    [[nodiscard]] ExitStatus run(const CommandEnvironment &environment) const override {
        write_(environment.out);
        return ExitStatus::succeeded;
    }

private:
    Write write_;
};

} // namespace velmar
