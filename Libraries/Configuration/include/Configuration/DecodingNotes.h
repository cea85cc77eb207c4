#pragma once

#include <Configuration/VariablesRecords.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// What a decoding passed over in silence, the place where it failed, and which places use which variables:
/// for a tool that explains a file to its author. A decoding fills it where it is given one; the offsets are
/// those of PropertyListValue::offset().
struct DecodingNotes {
    enum class Kind {
        unknownKey,      ///< A key of the file that no item names.
        enumerationCase, ///< A value that is one of the possible ones but for the case of its letters.
    };

    struct Note {
        Kind kind = Kind::unknownKey;
        std::string keyPath;
        std::uint32_t offset = 0;
        std::string message; ///< Empty, like the path, for those beyond the first thousand.
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
