#pragma once

#include <Command.h>

#include <string>
#include <vector>

namespace velmar {

/// "velmarctl check": reports how the application would treat files as its configuration.
class CheckCommand final : public Command {
public:
    explicit CheckCommand(CLI::App &commandLine);

    [[nodiscard]] ExitStatus run(const CommandEnvironment &environment) const override;

private:
    std::vector<std::string> files_;
    bool noAdmission_ = false;
    bool json_ = false;
    bool strict_ = false;
};

} // namespace velmar
