#pragma once

namespace velmar {

/// Before the process ends: lets the functions that run on queues end, begins none any more, and waits until
/// the log is written. All calls together wait for at most two seconds after the first one began; a further
/// call writes what was logged since. False if functions still run: the process then leaves by std::_Exit,
/// which destroys nothing that they use. Main thread.
[[nodiscard]] bool settleBeforeExit();

} // namespace velmar
