#include <ConfigurationCheck.h>

#include <Checks/Check.h>

#include <Admission/ConfigurationFile.h>
#include <Base/VelmarError.h>
#include <Configuration/Configuration.h>
#include <Configuration/DecodingNotes.h>
#include <Foundation/FileManager.h>
#include <Foundation/LocalizedError.h>
#include <Foundation/PropertyListDocument.h>
#include <Foundation/URL.h>
#include <logger/BaseDestination.h>
#include <logger/ScopedDestinations.h>

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace velmar {

namespace {

using Severity = Diagnostic::Severity;

// Further warnings are only counted.
constexpr std::size_t mostWarnings = 1000;

// Collects log records beside the error, such as the owner found.
class RecordingDestination final : public BaseDestination {
public:
    RecordingDestination()
        : BaseDestination(DestinationSettings{.asynchronously = false, .minLevel = LogLevel::warning}) {}

    void write(std::span<const LogRecord> records) override {
        for (const LogRecord &record : records) {
            lines.push_back(record.context.empty() ? record.message
                                                   : fmt::format("{} {}", record.message, record.context));
        }
    }

    std::vector<std::string> lines;
};

void admit(const ConfigurationFile &file, const std::string &path, const ConfigurationCheck::Options &options,
           const IdentityAuthority &authority) {
    // The application doesn't find such a file and therefore doesn't check it.
    if (!FileManager::defaultManager().fileExists(path)) {
        throw VelmarError(VelmarError::MissingConfigurationFile{URL::file(path).absoluteString()});
    }
    if (options.admission) {
        file.hasConfigFileCorrectPermissions(authority);
    }
}

Diagnostic makeDiagnostic(Severity severity, std::string message) {
    Diagnostic diagnostic;
    diagnostic.severity = severity;
    diagnostic.message = std::move(message);
    return diagnostic;
}

// Returns null if the file is refused.
std::shared_ptr<const Configuration> decode(const ConfigurationFile &file, const IdentityAuthority &authority,
                                            std::vector<Diagnostic> &diagnostics) {
    const std::string bytes = file.content();
    std::optional<PropertyListDocument> document;
    try {
        document = PropertyListDocument::read(bytes);
    } catch (const PropertyListError &error) {
        diagnostics.push_back(makeDiagnostic(Severity::error, error.errorDescription()));
        if (error.line() != 0) {
            diagnostics.back().line = error.line();
        }
        return nullptr;
    }
    const LineIndex lines = document->lines();
    std::multimap<std::uint32_t, Diagnostic> byOffset;
    const auto add = [&](Severity severity, std::string keyPath, std::uint32_t offset, std::string message) {
        const std::size_t line = lines.lineOf(offset);
        Diagnostic &added = byOffset.emplace(offset, makeDiagnostic(severity, std::move(message)))->second;
        added.keyPath = std::move(keyPath);
        added.line = line == 0 ? std::nullopt : std::optional(line);
    };
    for (const auto &duplicate : document->duplicates()) {
        const std::string &key = duplicate.key;
        add(Severity::warning, duplicate.path.empty() ? key : fmt::format("{}.{}", duplicate.path, key),
            duplicate.offset, fmt::format("The key '{}' is given more than once; the last one counts", key));
    }
    DecodingNotes notes;
    std::shared_ptr<const Configuration> configuration;
    std::optional<std::string> refusal;
    try {
        configuration = Configuration::decode(document->root(), &notes);
    } catch (const LocalizedError &error) {
        refusal = error.errorDescription();
    }
    if (configuration) {
        const CheckedFile checked{document->root(), *configuration, notes, authority};
        for (const Check &check : allChecks()) {
            for (UsageWarning &warning : check.warnings(checked)) {
                add(Severity::warning, std::move(warning.keyPath), warning.offset,
                    std::move(warning.message));
            }
        }
    }
    for (auto &note : notes.notes) {
        add(Severity::warning, std::move(note.keyPath), note.offset, std::move(note.message));
    }
    if (refusal && notes.failure) {
        add(Severity::error, std::move(notes.failure->keyPath), notes.failure->offset, *std::move(refusal));
    } else if (refusal) {
        diagnostics.push_back(makeDiagnostic(Severity::error, *std::move(refusal)));
    }
    for (auto &[offset, diagnostic] : byOffset) {
        diagnostics.push_back(std::move(diagnostic));
    }
    return configuration;
}

// Keeps all errors and the first warnings.
void limitWarnings(std::vector<Diagnostic> &diagnostics) {
    std::size_t warnings = 0;
    const std::size_t more = std::erase_if(diagnostics, [&](const Diagnostic &diagnostic) {
        return diagnostic.severity == Severity::warning && ++warnings > mostWarnings;
    });
    if (more > 0) {
        std::find_if(diagnostics.rbegin(), diagnostics.rend(), [](const Diagnostic &diagnostic) {
            return diagnostic.severity == Severity::warning;
        })->notes.push_back(fmt::format("and {} more", more));
    }
}

} // namespace

ConfigurationCheck::ConfigurationCheck(Options options, const IdentityAuthority &authority)
    : options_(options), authority_(authority) {}

ConfigurationCheck::Report ConfigurationCheck::check(const std::string &file) const {
    const auto log = std::make_shared<RecordingDestination>();
    Report report;
    std::vector<Diagnostic> &diagnostics = report.diagnostics;
    {
        const ScopedDestinations destinations({log});
        try {
            const ConfigurationFile configurationFile(URL::file(file));
            admit(configurationFile, file, options_, authority_);
            report.configuration = decode(configurationFile, authority_, diagnostics);
        } catch (const VelmarError &error) {
            diagnostics.push_back(makeDiagnostic(Severity::error, error.errorDescription()));
            diagnostics.back().notes.swap(log->lines); // The log gives the reason for this error.
        }
    }
    for (std::string &line : log->lines) {
        diagnostics.push_back(makeDiagnostic(Severity::warning, std::move(line)));
    }
    std::ranges::stable_sort(diagnostics, {},
                             [](const Diagnostic &diagnostic) { return diagnostic.line.value_or(0); });
    limitWarnings(diagnostics);
    for (Diagnostic &diagnostic : diagnostics) {
        diagnostic.file = file;
        if (options_.strict) {
            diagnostic.severity = Severity::error;
        }
    }
    return report;
}

} // namespace velmar
