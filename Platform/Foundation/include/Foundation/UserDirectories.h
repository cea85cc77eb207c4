#pragma once

#include <string>

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

} // namespace velmar::UserDirectories
