#include <CheckCommand.h>

#include <ConfigurationCheck.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>

namespace velmar {

CheckCommand::CheckCommand(CLI::App &commandLine)
    : Command(commandLine, "check", "Say what Velmar would do with a file as its configuration") {
    options().add_option("FILE", files_, "The files to check")->required();
    options().add_flag("--no-admission", noAdmission_, "Leave the owner and the permissions out");
    options().add_flag("--json", json_, "Print one JSON list of objects");
    options().add_flag("--strict", strict_, "Count warnings as errors");
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
