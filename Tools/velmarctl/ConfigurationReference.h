#pragma once

#include <ostream>

namespace velmar {

/// Writes the keys of a configuration as Markdown: a table for each item, made from the declarations.
void writeReference(std::ostream &out);

} // namespace velmar
