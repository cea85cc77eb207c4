#pragma once

namespace velmar {

/// Stops the queues and flushes the log before the process ends. Running functions are waited for; pending
/// ones are not run. All calls together wait at most two seconds after the start of the first one; a further
/// call flushes later messages. Returns false if functions are still running: the process must then end by
/// std::_Exit, which destroys no object that they use. Main thread.
[[nodiscard]] bool settleBeforeExit();

} // namespace velmar
