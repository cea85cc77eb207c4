#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace velmar {

/// A warning or an error about a configuration.
struct Diagnostic {
    enum class Severity : std::uint8_t {
        warning, ///< The application would ignore it silently, or log it and continue.
        error,   ///< The application would refuse the file.
    };

    std::string file; ///< As given by the user.
    Severity severity = Severity::error;
    std::string keyPath; ///< Dotted; empty if no key is concerned.
    std::optional<std::size_t>
        line; ///< Counts from 1; absent if the file has no lines or the place is unknown.
    std::string message;
    std::vector<std::string> notes; ///< Explanations, such as the reason logged by the application.
};

/// Writes one line per diagnostic, "FILE:LINE: error|warning: KEYPATH: text", without absent parts, and a
/// line "FILE: note: text" for each of its notes. Continuation lines of a text are indented by four blanks,
/// so that a value of the file cannot look like a diagnostic. Terminal controls, bidirectional controls and
/// invalid UTF-8 are escaped, as in "\x1b", "\u202e" and "\xff".
void writeText(std::ostream &out, std::span<const Diagnostic> diagnostics);

/// Writes a JSON list of objects with the members of Diagnostic; absent values are null.
void writeJSON(std::ostream &out, std::span<const Diagnostic> diagnostics);

} // namespace velmar
