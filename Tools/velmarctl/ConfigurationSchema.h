#pragma once

#include <ostream>

namespace velmar {

/// Writes the JSON Schema (draft 2020-12) of a configuration, generated from the declarations of its keys. It
/// describes the file as JSON of the same structure. It doesn't cover checks across the values of an item,
/// such as the sum of a slide's ratios, or references between parts of the file.
void writeSchema(std::ostream &out);

} // namespace velmar
