#pragma once

#include <csignal>

namespace velmar {

/// Blocks all signals on the current thread, except those of its own faults, during its lifetime. A thread
/// started meanwhile inherits the mask, so that signals from outside go to the main thread.
class SignalsBlocked {
public:
    SignalsBlocked() noexcept {
        sigset_t blocked;
        sigfillset(&blocked);
        for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP, SIGABRT, SIGSYS}) {
            sigdelset(&blocked, fault);
        }
        pthread_sigmask(SIG_SETMASK, &blocked, &former_);
    }
    ~SignalsBlocked() { pthread_sigmask(SIG_SETMASK, &former_, nullptr); }
    SignalsBlocked(const SignalsBlocked &) = delete;
    SignalsBlocked &operator=(const SignalsBlocked &) = delete;

private:
    sigset_t former_{};
};

} // namespace velmar
