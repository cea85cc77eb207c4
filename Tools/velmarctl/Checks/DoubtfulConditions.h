#pragma once

#include <Checks/Check.h>

namespace velmar {

/// Warns of conditions that are admitted and then fail: a named condition that names another one, a
/// comparison that no value can stand, and a condition that takes a variable or a named condition for what it
/// is not, by the value in General.Variables as it stands there. Of variables without a value in the file
/// nothing is known.
[[nodiscard]] std::vector<UsageWarning> doubtfulConditions(const CheckedFile &file);

} // namespace velmar
