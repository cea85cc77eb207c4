#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <vector>

namespace velmar {

/// One thing to say about a configuration.
struct Diagnostic {
    enum class Severity : std::uint8_t {
        warning, ///< The application would ignore it without a word, or log it and go on.
        error,   ///< The application would refuse the file.
    };

    std::string file; ///< As it was given.
    Severity severity = Severity::error;
    std::string keyPath; ///< Dotted; empty where no key is concerned.
    std::optional<std::size_t>
        line; ///< Counts from 1; absent where the file has no lines or the place is not known.
    std::string message;
    std::vector<std::string> notes; ///< What explains it, such as the reason that the application logged.
};

/// One line each in the manner of compilers, "FILE:LINE: error|warning: KEYPATH: text", without the parts
/// that are absent; a line "FILE: note: text" behind it for each of its notes. Behind a line feed of a text
/// stand four blanks, so that no value of the file makes a line that looks like a diagnostic. What would
/// steer a terminal (controls, changes of the direction of writing) and what isn't UTF-8 is written out, as
/// "\x1b", "\u202e" and "\xff".
void writeText(std::ostream &out, std::span<const Diagnostic> diagnostics);

/// A JSON list of objects with the members of Diagnostic; null where one is absent.
void writeJSON(std::ostream &out, std::span<const Diagnostic> diagnostics);

} // namespace velmar
