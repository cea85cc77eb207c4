#pragma once

#include <Checks/Check.h>

namespace velmar {

/// Warns of the variables and named conditions of a file that nothing uses. A name is used where a text
/// refers to it, a condition names it, a trigger waits for it or a key declares it. What stands below keys
/// that the model does not know may use it in any way: there it is enough that it stands in a text or is a
/// key.
[[nodiscard]] std::vector<UsageWarning> unusedNames(const CheckedFile &file);

} // namespace velmar
