#include <CommandLine.h>

#include <Configuration/ConfigurationVersion.h>
#include <ConfigurationCheck.h>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace velmar {

namespace {

ExitStatus run(std::vector<std::string> arguments, const IdentityAuthority &authority, std::ostream &out,
               std::ostream &err) {
    CLI::App app("The administrator's tool for Velmar.", "velmarctl");
    app.set_version_flag("--version", fmt::format("velmarctl {} (configuration {})", VELMAR_VERSION,
                                                  ConfigurationVersion::version));
    app.require_subcommand(1);

    CLI::App *check =
        app.add_subcommand("check", "Say what Velmar would do with a file as its configuration");
    std::vector<std::string> files;
    check->add_option("FILE", files, "The files to check")->required();
    bool noAdmission = false;
    check->add_flag("--no-admission", noAdmission, "Leave the owner and the permissions out");
    bool json = false;
    check->add_flag("--json", json, "Print one JSON list of objects");
    bool strict = false;
    check->add_flag("--strict", strict, "Count warnings as errors");

    try {
        std::ranges::reverse(arguments); // CLI11 takes them from the back.
        app.parse(arguments);
    } catch (const CLI::ParseError &error) {
        return app.exit(error, out, err) == 0 ? ExitStatus::wouldRun : ExitStatus::failed;
    }

    const ConfigurationCheck checker({.admission = !noAdmission, .strict = strict}, authority);
    std::vector<Diagnostic> diagnostics;
    for (const std::string &file : files) {
        std::ranges::move(checker.check(file), std::back_inserter(diagnostics));
    }
    if (json) {
        writeJSON(out, diagnostics);
    } else {
        writeText(out, diagnostics);
    }
    const bool isRefused = std::ranges::find(diagnostics, Diagnostic::Severity::error,
                                             &Diagnostic::severity) != diagnostics.end();
    return isRefused ? ExitStatus::refused : ExitStatus::wouldRun;
}

} // namespace

ExitStatus runCommandLine(std::vector<std::string> arguments, const IdentityAuthority &authority,
                          std::ostream &out, std::ostream &err) {
    const ExitStatus status = run(std::move(arguments), authority, out, err);
    if (!out.flush()) {
        err << "velmarctl: The output could not be written.\n";
        return ExitStatus::failed;
    }
    return status;
}

} // namespace velmar
