#pragma once

#include <string>
#include <vector>

/// Where the user that the process acts as keeps what programs store. Any thread, as long as none changes the
/// environment.
namespace velmar::UserDirectories {

/// The directory of settings: `$XDG_CONFIG_HOME` if that is an absolute path, else `.config` in `$HOME` if
/// that is one, else `.config` in the home directory of the account. It may not be there yet.
///
/// Root may have been given the environment of somebody else, who would choose where root writes: for root
/// each of the two variables counts only if its directory and those above it belong to root and nobody else
/// may write in them or replace one; a directory that is missing is judged by those above.
[[nodiscard]] std::string configuration();

/// The directories of what programs bring along (desktop entries, sounds), in the order in which they are
/// searched: `$XDG_DATA_HOME`, by default `.local/share` in the home directory, then those of
/// `$XDG_DATA_DIRS`, by default `/usr/local/share` and `/usr/share`. For root the same holds as above.
[[nodiscard]] std::vector<std::string> data();

} // namespace velmar::UserDirectories
