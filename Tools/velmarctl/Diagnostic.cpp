#include <Diagnostic.h>

#include <Foundation/UnicodeText.h>

#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <string_view>

namespace velmar {

namespace {

std::string_view text(Diagnostic::Severity severity) noexcept {
    return severity == Diagnostic::Severity::error ? "error" : "warning";
}

// The length of the character that a text begins with; 0 if the text doesn't begin with one.
std::size_t characterLength(std::string_view text) {
    for (std::size_t length = 1; length <= std::min<std::size_t>(text.size(), 4); ++length) {
        if (UnicodeText::isValidUtf8(text.substr(0, length))) {
            return length;
        }
    }
    return 0;
}

std::uint32_t codePoint(std::string_view character) {
    const auto first = static_cast<unsigned char>(character[0]);
    if (character.size() == 1) {
        return first;
    }
    std::uint32_t value = first & (0xFFU >> (character.size() + 1)); // Without the mark of the length.
    for (const char byte : character.substr(1)) {
        value = value << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return value;
}

// Controls, separators of lines, and what changes the direction of writing.
bool steersTerminals(std::uint32_t codePoint) noexcept {
    const auto isBetween = [codePoint](std::uint32_t first, std::uint32_t last) {
        return first <= codePoint && codePoint <= last;
    };
    return isBetween(0, 0x1F) || isBetween(0x7F, 0x9F) || codePoint == 0x61C || isBetween(0x200E, 0x200F) ||
           isBetween(0x2028, 0x202E) || isBetween(0x2066, 0x2069);
}

// Keys, values and names come from files that may mean harm to a terminal.
std::string printable(std::string_view text, std::string_view lineFeed = R"(\x0a)") {
    std::string result;
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
        if (character == "\n") {
            result += lineFeed;
        } else if (length == 0 || (length == 1 && steersTerminals(codePoint(character)))) {
            result += fmt::format("\\x{:02x}", static_cast<unsigned char>(character[0]));
        } else if (steersTerminals(codePoint(character))) {
            result += fmt::format("\\u{:04x}", codePoint(character));
        } else {
            result += character;
        }
        text.remove_prefix(character.size());
    }
    return result;
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
    // A file's name need not be UTF-8; and this list, too, may be looked at on a terminal.
    out << list.dump(2, ' ', true, ordered_json::error_handler_t::replace) << '\n';
}

} // namespace velmar
