#include <CommandLine.h>

#include <CheckCommand.h>
#include <Configuration/ConfigurationVersion.h>
#include <ConfigurationSchema.h>
#include <DescriptionCommand.h>
#include <EvalCommand.h>
#include <RenderCommand.h>
#include <RunSetCommand.h>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace velmar {

namespace {

ExitStatus run(std::vector<std::string> arguments, const CommandEnvironment &environment) {
    CLI::App app("The administrator's tool for Velmar.", "velmarctl");
    app.set_version_flag("--version", fmt::format("velmarctl {} (configuration {})", VELMAR_VERSION,
                                                  ConfigurationVersion::version));
    app.require_subcommand(1);
    const CheckCommand check(app);
    const EvalCommand eval(app);
    const RunSetCommand runSet(app);
    const RenderCommand render(app);
    const DescriptionCommand schema(app, "schema", "Print the JSON Schema of a configuration", &writeSchema);
    const DescriptionCommand reference(app, "reference", "Print the keys of a configuration as Markdown",
                                       &writeReference);

    try {
        std::ranges::reverse(arguments); // CLI11 takes them from the back.
        app.parse(std::move(arguments));
    } catch (const CLI::ParseError &error) {
        return app.exit(error, environment.out, environment.err) == 0 ? ExitStatus::succeeded
                                                                      : ExitStatus::failed;
    }
    // The parser has seen to it that there is one.
    const Command *const commands[] = {&check, &eval, &runSet, &render, &schema, &reference};
    return (*std::ranges::find_if(commands, &Command::isNamed))->run(environment);
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
