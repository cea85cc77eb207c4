#pragma once

#include <Command.h>

#include <string>
#include <vector>

namespace velmar {

/// "velmarctl render": makes a picture of each slide, using the application's own views in a separate
/// process.
class RenderCommand final : public Command {
public:
    explicit RenderCommand(CLI::App &commandLine);

    [[nodiscard]] ExitStatus run(const CommandEnvironment &environment) const override;

private:
    [[nodiscard]] std::vector<std::string> argumentsOfRenderer() const;

    std::string file_;
    std::string directory_;
    std::string size_;
    std::string scale_;
    std::string language_;
    std::vector<std::string> variables_;
    bool isDark_ = false;
    bool noAdmission_ = false;
};

} // namespace velmar
