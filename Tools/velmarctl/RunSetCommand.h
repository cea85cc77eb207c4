#pragma once

#include <Command.h>

#include <cstddef>
#include <string>
#include <vector>

namespace velmar {

/// "velmarctl run-set": runs one set of actions of a configuration on trial.
class RunSetCommand final : public Command {
public:
    explicit RunSetCommand(CLI::App &commandLine);

    [[nodiscard]] ExitStatus run(const CommandEnvironment &environment) const override;

private:
    std::string configuration_;
    std::size_t index_ = 0;
    std::vector<std::string> variables_; // NAME=VALUE
};

} // namespace velmar
