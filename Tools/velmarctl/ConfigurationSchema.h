#pragma once

#include <ostream>

namespace velmar {

/// The JSON Schema (draft 2020-12) of a configuration, made from the declarations of its keys. It describes
/// the file as the JSON of the same structure. What an item checks across its keys' values, such as the sum
/// of the ratios of a slide, and references between the parts of the file are beyond it.
void writeSchema(std::ostream &out);

} // namespace velmar
