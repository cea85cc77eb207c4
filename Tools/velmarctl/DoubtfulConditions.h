#pragma once

#include <UsageWarning.h>

#include <vector>

namespace velmar {

struct Configuration;

/// Warns of conditions that are admitted and then fail: a named condition that names another one, and a
/// condition that takes a variable or a named condition for what it is not, by the value in
/// General.Variables. Values with "${" in them are not judged, nor are variables that have no value in the
/// file.
[[nodiscard]] std::vector<UsageWarning> doubtfulConditions(const Configuration &configuration);

} // namespace velmar
