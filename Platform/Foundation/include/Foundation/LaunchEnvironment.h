#pragma once

namespace velmar {

/// The environment of the programs that this process launches.
namespace LaunchEnvironment {

/// Has programs get the environment as it is at this moment, whatever this process changes of its own later.
/// Before the first thread.
void keep();

/// As execve() takes it: what was kept, or the process's own. Any thread.
[[nodiscard]] char *const *get() noexcept;

} // namespace LaunchEnvironment

} // namespace velmar
