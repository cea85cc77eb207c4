#pragma once

#include <logger/BaseDestination.h>

#include <memory>
#include <vector>

namespace velmar {

class IdentityAuthority;

/// The application's three destinations in the order of their installation: the standard output, the
/// throw-away file and the permanent file, both of the user at the console, to whom they belong also where
/// root writes them.
[[nodiscard]] std::vector<std::shared_ptr<BaseDestination>>
makeVelmarLogDestinations(const IdentityAuthority &authority);

/// Adds them to the logger. Once, at the start of the process.
void installVelmarLogDestinations(const IdentityAuthority &authority);

} // namespace velmar
