#include <CheckCommand.h>

#include <Checks/Check.h>
#include <ConfigurationCheck.h>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace velmar {

CheckCommand::CheckCommand(CLI::App &commandLine)
    : Command(commandLine, "check", "Say what Velmar would do with a file as its configuration") {
    options().add_option("FILE", files_, "The files to check")->required();
    options().add_flag("--no-admission", noAdmission_, "Leave the owner and the permissions out");
    options().add_flag("--json", json_, "Print one JSON list of objects");
    options().add_flag("--strict", strict_, "Count warnings as errors");
    std::vector<std::string_view> names;
    std::ranges::transform(allChecks(), std::back_inserter(names), &Check::name);
    options().footer(fmt::format("Warns of unknown and repeated keys, {}.", fmt::join(names, ", ")));
}

ExitStatus CheckCommand::run(const CommandEnvironment &environment) const {
    const ConfigurationCheck checker({.admission = !noAdmission_, .strict = strict_}, environment.authority);
    std::vector<Diagnostic> diagnostics;
    for (const std::string &file : files_) {
        std::ranges::move(checker.check(file).diagnostics, std::back_inserter(diagnostics));
    }
    if (json_) {
        writeJSON(environment.out, diagnostics);
    } else {
        writeText(environment.out, diagnostics);
    }
    const bool isRefused = std::ranges::find(diagnostics, Diagnostic::Severity::error,
                                             &Diagnostic::severity) != diagnostics.end();
    return isRefused ? ExitStatus::refused : ExitStatus::succeeded;
}

} // namespace velmar
