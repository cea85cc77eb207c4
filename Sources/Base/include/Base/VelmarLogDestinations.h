#pragma once

#include <logger/BaseDestination.h>

#include <memory>
#include <vector>

namespace velmar {

class IdentityAuthority;

/// Creates the three log destinations in the order of their installation: standard output, temporary file and
/// permanent file. The console user owns both files, even if root writes them.
[[nodiscard]] std::vector<std::shared_ptr<BaseDestination>>
makeVelmarLogDestinations(const IdentityAuthority &authority);

/// Adds the destinations to the logger. Called once, at the start of the process.
void installVelmarLogDestinations(const IdentityAuthority &authority);

} // namespace velmar
