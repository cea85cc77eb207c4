#include <ConfigurationCheck.h>

#include <Configuration/Configuration.h>
#include <Configuration/DecodingNotes.h>
#include <Foundation/FileManager.h>
#include <Foundation/LocalizedError.h>
#include <Foundation/PropertyList.h>
#include <Foundation/URL.h>
#include <Managers/ConfigurationFile.h>
#include <Models/VelmarError.h>
#include <logger/BaseDestination.h>
#include <logger/ScopedDestinations.h>

#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace velmar {

namespace {

using Severity = Diagnostic::Severity;

// What the application would log beside refusing the file, such as the owner that it found.
class RecordingDestination final : public BaseDestination {
public:
    RecordingDestination() : BaseDestination(synchronous()) {}

    void write(std::span<const LogRecord> records) override {
        for (const LogRecord &record : records) {
            Diagnostic diagnostic;
            diagnostic.severity = record.level == LogLevel::error ? Severity::error : Severity::warning;
            diagnostic.message = record.context.empty()
                                     ? record.message
                                     : fmt::format("{} {}", record.message, record.context);
            diagnostics.push_back(std::move(diagnostic));
        }
    }

    std::vector<Diagnostic> diagnostics;

private:
    static DestinationSettings synchronous() {
        DestinationSettings settings;
        settings.asynchronously = false;
        settings.minLevel = LogLevel::warning;
        return settings;
    }
};

std::optional<std::size_t> lineOf(const PropertyList::Document &document, std::uint32_t offset) {
    const std::size_t line = document.lineOf(offset);
    return line == 0 ? std::nullopt : std::optional(line);
}

std::string joined(const std::string &path, const std::string &key) {
    return path.empty() ? key : fmt::format("{}.{}", path, key);
}

void admit(const ConfigurationFile &file, const std::string &path, const ConfigurationCheck::Options &options,
           const IdentityAuthority &authority) {
    // The application doesn't find such a file in the first place, and so never judges it.
    if (!FileManager::defaultManager().fileExists(path)) {
        throw VelmarError(VelmarError::MissingConfigurationFile{URL::file(path).absoluteString()});
    }
    if (options.admission) {
        file.hasConfigFileCorrectPermissions(authority);
    }
}

void decode(const std::string &content, std::vector<Diagnostic> &diagnostics) {
    PropertyList::Document document;
    try {
        document = PropertyList::read(content);
    } catch (const PropertyListError &error) {
        diagnostics.push_back({{}, Severity::error, {}, {}, error.errorDescription()});
        if (error.line() != 0) {
            diagnostics.back().line = error.line();
        }
        return;
    }
    for (const auto &duplicate : document.duplicates) {
        diagnostics.push_back(
            {{},
             Severity::warning,
             joined(duplicate.path, duplicate.key),
             lineOf(document, duplicate.offset),
             fmt::format("The key '{}' is given more than once; the last one counts", duplicate.key)});
    }
    DecodingNotes notes;
    std::optional<std::string> refusal;
    try {
        static_cast<void>(Configuration::decode(document.value, &notes));
    } catch (const LocalizedError &error) {
        refusal = error.errorDescription();
    }
    for (const auto &note : notes.notes) {
        diagnostics.push_back(
            {{}, Severity::warning, note.keyPath, lineOf(document, note.offset), note.message});
    }
    if (refusal) {
        diagnostics.push_back({{}, Severity::error, {}, {}, *std::move(refusal)});
        if (notes.failure) {
            diagnostics.back().keyPath = notes.failure->keyPath;
            diagnostics.back().line = lineOf(document, notes.failure->offset);
        }
    }
}

} // namespace

ConfigurationCheck::ConfigurationCheck(Options options, const IdentityAuthority &authority)
    : options_(options), authority_(authority) {}

std::vector<Diagnostic> ConfigurationCheck::check(const std::string &file) const {
    const auto log = std::make_shared<RecordingDestination>();
    std::vector<Diagnostic> diagnostics;
    {
        const ScopedDestinations destinations({log});
        try {
            const ConfigurationFile configurationFile(URL::file(file));
            admit(configurationFile, file, options_, authority_);
            decode(configurationFile.content(), diagnostics);
        } catch (const VelmarError &error) {
            diagnostics.push_back({{}, Severity::error, {}, {}, error.errorDescription()});
        }
    }
    diagnostics.insert(diagnostics.begin(), log->diagnostics.begin(), log->diagnostics.end());
    std::ranges::stable_sort(diagnostics, {},
                             [](const Diagnostic &diagnostic) { return diagnostic.line.value_or(0); });
    for (Diagnostic &diagnostic : diagnostics) {
        diagnostic.file = file;
        if (options_.strict) {
            diagnostic.severity = Severity::error;
        }
    }
    return diagnostics;
}

} // namespace velmar
