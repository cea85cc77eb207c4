#pragma once

#include <ostream>

namespace velmar {

/// Writes the keys of a configuration as Markdown, one table per item, generated from the declarations.
void writeReference(std::ostream &out);

} // namespace velmar
