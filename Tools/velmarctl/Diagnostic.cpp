#include <Diagnostic.h>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <string_view>

namespace velmar {

namespace {

std::string_view text(Diagnostic::Severity severity) noexcept {
    return severity == Diagnostic::Severity::error ? "error" : "warning";
}

// Keys and names come from files that may mean harm to a terminal.
std::string printable(std::string_view text, bool keepsLineFeeds) {
    std::string result;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if ((byte < 0x20 && !(keepsLineFeeds && character == '\n')) || byte == 0x7F) {
            result += fmt::format("\\x{:02x}", byte);
        } else {
            result += character;
        }
    }
    return result;
}

} // namespace

void writeText(std::ostream &out, std::span<const Diagnostic> diagnostics) {
    for (const Diagnostic &diagnostic : diagnostics) {
        out << printable(diagnostic.file, false);
        if (diagnostic.line) {
            out << ':' << *diagnostic.line;
        }
        out << ": " << text(diagnostic.severity) << ": ";
        if (!diagnostic.keyPath.empty()) {
            out << printable(diagnostic.keyPath, false) << ": ";
        }
        out << printable(diagnostic.message, true) << '\n';
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
        });
    }
    // A file's name need not be UTF-8.
    out << list.dump(2, ' ', false, ordered_json::error_handler_t::replace) << '\n';
}

} // namespace velmar
