#pragma once

#include <csignal>

namespace velmar {

/// While it lives, the thread takes no signals but those of its own faults. A thread that is started
/// meanwhile inherits that: the signals that others send stay with the main thread.
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
