#pragma once

#include <Checks/Check.h>

namespace velmar {

/// Warns of the variables and named conditions of a file that nothing uses. A name is used where a text
/// refers to it, a condition names it, a trigger waits for it or a key declares it. Below an unknown key, a
/// name counts as used if it is a key or part of a text.
[[nodiscard]] std::vector<UsageWarning> unusedNames(const CheckedFile &file);

} // namespace velmar
