#include <RunSetCommand.h>

#include <ConfigurationCheck.h>
#include <SetRehearsal.h>
#include <VariableOption.h>

#include <Configuration/Configuration.h>

#include <fmt/format.h>

namespace velmar {

RunSetCommand::RunSetCommand(CLI::App &commandLine)
    : Command(commandLine, "run-set", "Run one set of actions without the interface") {
    options().add_option("FILE", configuration_, "The configuration, which must be admitted")->required();
    options().add_option("INDEX", index_, "The set's place in ActionSets, from 0")->required();
    addVariableOption(options(), variables_);
}

ExitStatus RunSetCommand::run(const CommandEnvironment &environment) const {
    // Admission is always checked, because the file's actions are run.
    const ConfigurationCheck check({}, environment.authority);
    const auto [diagnostics, configuration] = check.check(configuration_);
    if (!configuration) {
        writeText(environment.err, diagnostics);
        return ExitStatus::refused;
    }
    const std::size_t count = configuration->_actionSets().size();
    if (index_ >= count) {
        environment.err << fmt::format("There is no set {}: ActionSets has {}{}.\n", index_, count,
                                       count == 0 ? "" : ", counted from 0");
        return ExitStatus::refused;
    }
    SetRehearsal rehearsal(configuration, index_, environment.in, environment.out);
    for (const std::string &variable : variables_) {
        const auto [name, value] = assignmentOf(variable);
        rehearsal.setVariable(name, std::string(value));
    }
    return rehearsal.run() ? ExitStatus::succeeded : ExitStatus::refused;
}

} // namespace velmar
