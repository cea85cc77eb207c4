#pragma once

#include <Command.h>

#include <optional>
#include <string>
#include <vector>

namespace velmar {

class EvaluationContext;

/// "velmarctl eval": prints the value of a condition and, on request, how it was reached.
class EvalCommand final : public Command {
public:
    explicit EvalCommand(CLI::App &commandLine);

    [[nodiscard]] ExitStatus run(const CommandEnvironment &environment) const override;

private:
    [[nodiscard]] ExitStatus evaluate(const EvaluationContext &context,
                                      const CommandEnvironment &environment) const;

    std::string expression_;
    std::vector<std::string> variables_; // NAME=VALUE
    std::optional<std::string> configuration_;
    bool noAdmission_ = false;
    bool explain_ = false;
    bool batch_ = false;
};

} // namespace velmar
