#pragma once

#include <expressions/Expression.h>
#include <expressions/Variables.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// Which place of a file uses which variables, in the order in which it is decoded: every text with a
/// reference and every condition that names a variable, those of the books among them. For a tool; a decoding
/// keeps only the places.
struct VariablesRecords {
    struct Record {
        VariableNames variables; ///< Never empty.
        std::string codingPath;
        std::uint32_t offset = 0; ///< As PropertyListValue::offset().
        /// Absent for a text. The names that a condition uses may be those of other conditions as well.
        std::optional<expressions::Expression> condition;
    };

    std::vector<Record> records;
};

} // namespace velmar
