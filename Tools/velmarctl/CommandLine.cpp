#include <CommandLine.h>

#include <CheckCommand.h>
#include <ConfigurationReference.h>
#include <ConfigurationSchema.h>
#include <DescriptionCommand.h>
#include <EvalCommand.h>
#include <RenderCommand.h>
#include <RunSetCommand.h>

#include <Configuration/ConfigurationVersion.h>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace velmar {

namespace {

using MakeCommand = std::unique_ptr<Command> (*)(CLI::App &commandLine);

template <class Made>
std::unique_ptr<Command> make(CLI::App &commandLine) {
    return std::make_unique<Made>(commandLine);
}

// In the order of the help text.
constexpr MakeCommand allCommands[] = {
    &make<CheckCommand>,
    &make<EvalCommand>,
    &make<RunSetCommand>,
    &make<RenderCommand>,
    [](CLI::App &commandLine) -> std::unique_ptr<Command> {
        return std::make_unique<DescriptionCommand>(commandLine, "schema",
                                                    "Print the JSON Schema of a configuration", &writeSchema);
    },
    [](CLI::App &commandLine) -> std::unique_ptr<Command> {
        return std::make_unique<DescriptionCommand>(
            commandLine, "reference", "Print the keys of a configuration as Markdown", &writeReference);
    },
};

ExitStatus run(std::vector<std::string> arguments, const CommandEnvironment &environment) {
    CLI::App app("The administrator's tool for Velmar.", "velmarctl");
    app.set_version_flag("--version", fmt::format("velmarctl {} (configuration {})", VELMAR_VERSION,
                                                  ConfigurationVersion::version));
    app.require_subcommand(1);
    std::vector<std::unique_ptr<const Command>> commands;
    for (const MakeCommand makeCommand : allCommands) {
        commands.push_back(makeCommand(app));
    }

    try {
        std::ranges::reverse(arguments); // CLI11 takes the arguments from the back.
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError &error) {
        return app.exit(error, environment.out, environment.err) == 0 ? ExitStatus::succeeded
                                                                      : ExitStatus::failed;
    }
    // The parser requires exactly one command.
    return (*std::ranges::find_if(commands, [](const auto &command) { return command->isNamed(); }))
        ->run(environment);
}

} // namespace

ExitStatus runCommandLine(std::vector<std::string> arguments, const CommandEnvironment &environment) {
    const ExitStatus status = run(std::move(arguments), environment);
    if (!environment.out.flush()) {
        environment.err << "velmarctl: The output could not be written.\n";
        return ExitStatus::failed;
    }
    return status;
}

} // namespace velmar
