#pragma once

#include <string>
#include <vector>

/// Standard directories of the effective user. Thread-safe as long as no thread changes the environment.
namespace velmar::UserDirectories {

/// Returns the directory of settings: `$XDG_CONFIG_HOME` if it is an absolute path, else `.config` in `$HOME`
/// if that is an absolute path, else `.config` in the home directory of the account. The directory may not
/// exist.
///
/// Root may have inherited another user's environment, which must not choose where root writes. A variable
/// therefore counts for root only if its directory and all parents belong to root and no other user can write
/// to or replace them. A missing directory is judged by its existing parents.
[[nodiscard]] std::string configuration();

/// Returns the directories of installed data (desktop entries, sounds) in search order: `$XDG_DATA_HOME`, by
/// default `.local/share` in the home directory, then `$XDG_DATA_DIRS`, by default `/usr/local/share` and
/// `/usr/share`. The rule for root in configuration() applies.
[[nodiscard]] std::vector<std::string> data();

} // namespace velmar::UserDirectories
