#pragma once

#include <Checks/Check.h>

namespace velmar {

/// Warns of parts that do nothing as they stand: a container without width, a trigger that fires no set or
/// that nothing fires, an application of the installer "System" without an identifier, and a request whose
/// server takes XML with a body that cannot be written so. That installer's log names applications by their
/// identifiers alone; the others go by names.
[[nodiscard]] std::vector<UsageWarning> ineffectiveParts(const CheckedFile &file);

} // namespace velmar
