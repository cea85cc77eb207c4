#pragma once

#include <Checks/Check.h>

namespace velmar {

/// Warns of conditions that are admitted and then fail: a named condition that names another one, a
/// comparison that fails with every value, and one whose kind is not that of the variable or named condition.
/// The kind of a variable is that of its value in General.Variables; a variable without one is not judged.
[[nodiscard]] std::vector<UsageWarning> doubtfulConditions(const CheckedFile &file);

} // namespace velmar
