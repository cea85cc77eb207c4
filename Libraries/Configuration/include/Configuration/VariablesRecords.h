#pragma once

#include <expressions/Expression.h>
#include <expressions/Variables.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// The places of a file that use variables, in decoding order: every text with a reference and every
/// condition that names a variable, including those of the books. Recorded for tools only.
struct VariablesRecords {
    struct Record {
        VariableNames variables; ///< Never empty.
        std::string codingPath;
        std::uint32_t offset = 0; ///< As PropertyListValue::offset().
        /// Absent for a text. The names in a condition may also be those of other conditions.
        std::optional<expressions::Expression> condition;
    };

    std::vector<Record> records;
};

} // namespace velmar
