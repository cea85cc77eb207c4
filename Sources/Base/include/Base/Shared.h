#pragma once

#include <Base/VelmarError.h>

#include <memory>
#include <mutex>
#include <type_traits>
#include <utility>

namespace velmar {

/// The instance of T that the process shares. It is reached by `Shared<T>::instance()` from any thread, which
/// types offer as `T::shared()`; who uses one takes it as an injected field and not in the middle of an
/// operation.
///
/// A type that can be made from nothing is made at the first access and lives until the process ends. Any
/// other is installed by whoever makes it, with a `Scope` that it keeps:
///
///     Shared<ConfigurationSlot>::Scope scope(std::make_shared<ConfigurationSlot>(...));
///
/// A test replaces the instance of either sort in the same way. Scopes end in the reverse order of their
/// making.
template <class T>
class Shared {
public:
    /// Never null. Throws VelmarError::InternalError while there is none to give.
    [[nodiscard]] static std::shared_ptr<T> instance() {
        State &state = Shared::state();
        const std::lock_guard lock(state.mutex);
        if (!state.instance) {
            if constexpr (std::is_default_constructible_v<T>) {
                state.instance = std::make_shared<T>();
            } else {
                throw VelmarError(
                    VelmarError::InternalError{"A shared instance was used before it was made."});
            }
        }
        return state.instance;
    }

    /// Shares an instance for as long as it lives, then what was shared before.
    class Scope {
    public:
        explicit Scope(std::shared_ptr<T> instance) : other_(std::move(instance)) { exchange(); }
        ~Scope() { exchange(); }
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;

    private:
        void exchange() {
            State &state = Shared::state();
            const std::lock_guard lock(state.mutex);
            state.instance.swap(other_);
        }

        // The instance that is to be shared, then the one that was: it is let go outside of the lock.
        std::shared_ptr<T> other_;
    };

private:
    struct State {
        std::mutex mutex;
        std::shared_ptr<T> instance;
    };

    static State &state() {
        // Never destroyed: a pool thread may still read while the process ends.
        static auto *const state = new State;
        return *state;
    }
};

} // namespace velmar
