#pragma once

#include <Checks/Check.h>

namespace velmar {

/// Warns of parts without effect: a container without width, a trigger that fires no set or that nothing
/// fires, an application of the installer "System" without an identifier, and a request to a server that
/// takes XML with a body that has no XML form. The log of that installer names applications by their
/// identifiers only.
[[nodiscard]] std::vector<UsageWarning> ineffectiveParts(const CheckedFile &file);

} // namespace velmar
