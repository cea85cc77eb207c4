#include <Diagnostic.h>
#include <PrintableText.h>

#include <nlohmann/json.hpp>

#include <string_view>

namespace velmar {

namespace {

std::string_view text(Diagnostic::Severity severity) noexcept {
    return severity == Diagnostic::Severity::error ? "error" : "warning";
}

} // namespace

void writeText(std::ostream &out, std::span<const Diagnostic> diagnostics) {
    static constexpr std::string_view continuation = "\n    ";
    for (const Diagnostic &diagnostic : diagnostics) {
        const std::string file = printable(diagnostic.file);
        out << file;
        if (diagnostic.line) {
            out << ':' << *diagnostic.line;
        }
        out << ": " << text(diagnostic.severity) << ": ";
        if (!diagnostic.keyPath.empty()) {
            out << printable(diagnostic.keyPath) << ": ";
        }
        out << printable(diagnostic.message, continuation) << '\n';
        for (const std::string &note : diagnostic.notes) {
            out << file << ": note: " << printable(note, continuation) << '\n';
        }
    }
}

void writeJSON(std::ostream &out, std::span<const Diagnostic> diagnostics) {
    using nlohmann::ordered_json;
    ordered_json list = ordered_json::array();
    for (const Diagnostic &diagnostic : diagnostics) {
        list.push_back({
            {"file", diagnostic.file},
            {"severity", text(diagnostic.severity)},
            {"keyPath", diagnostic.keyPath.empty() ? ordered_json() : ordered_json(diagnostic.keyPath)},
            {"line", diagnostic.line ? ordered_json(*diagnostic.line) : ordered_json()},
            {"message", diagnostic.message},
            {"notes", diagnostic.notes},
        });
    }
    // A file name need not be UTF-8. ASCII only, because the list may be printed on a terminal.
    out << list.dump(2, ' ', true, ordered_json::error_handler_t::replace) << '\n';
}

} // namespace velmar
