#pragma once

namespace velmar {

/// The environment of the programs that this process launches.
namespace LaunchEnvironment {

/// Takes a snapshot of the current environment for all programs launched later. Must be called before the
/// first thread starts.
void keep();

/// Returns the snapshot of keep() in the form of execve(), or the process's own environment if there is none.
/// Thread-safe.
[[nodiscard]] char *const *get() noexcept;

} // namespace LaunchEnvironment

} // namespace velmar
