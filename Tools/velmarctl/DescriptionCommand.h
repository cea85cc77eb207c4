#pragma once

#include <Command.h>

#include <ostream>
#include <string>

namespace velmar {

/// A command that prints a description of the configuration format: "velmarctl schema" or "velmarctl
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
