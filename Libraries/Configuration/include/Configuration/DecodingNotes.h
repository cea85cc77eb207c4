#pragma once

#include <Configuration/VariablesRecords.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// Diagnostics of a decoding, for tools that explain a file to its author: skipped parts, the place of the
/// failure, and the places that use variables. Offsets are those of PropertyListValue::offset().
struct DecodingNotes {
    enum class Kind {
        unknownKey,      ///< A key that the item doesn't declare.
        enumerationCase, ///< A value that differs from a possible one only in case.
    };

    struct Note {
        Kind kind = Kind::unknownKey;
        std::string keyPath;
        std::uint32_t offset = 0;
        std::string message; ///< Empty, like the path, for unknown keys after 1000 notes.
    };

    struct Failure {
        std::string keyPath;
        std::uint32_t offset = 0;
    };

    std::vector<Note> notes;
    std::optional<Failure> failure; ///< The innermost key of the first failure.
    VariablesRecords variables;
};

} // namespace velmar
