#pragma once

#include <expressions/Variables.h>

#include <cstdint>
#include <string>
#include <vector>

namespace velmar {

/// Which place of a file uses which variables, in the order of the file: every text with a reference, those
/// of General.Variables among them.
struct VariablesRecords {
    struct Record {
        VariableNames variables; ///< Never empty.
        std::string codingPath;
        std::uint32_t offset = 0; ///< As PropertyList::offset().
    };

    std::vector<Record> records;
};

} // namespace velmar
