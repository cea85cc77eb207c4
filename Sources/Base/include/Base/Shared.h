#pragma once

#include <Base/VelmarError.h>

#include <memory>
#include <mutex>
#include <type_traits>
#include <utility>

namespace velmar {

/// The instance of T shared by the process. `Shared<T>::instance()` returns it on any thread; types offer it
/// as `T::shared()`. Take it as an injected field, not in the middle of an operation.
///
/// A default-constructible type is created at the first access and lives until the process ends. An instance
/// of any other type is installed by its creator, which keeps a `Scope`:
///
///     Shared<ConfigurationSlot>::Scope scope(std::make_shared<ConfigurationSlot>(...));
///
/// A test replaces either kind of instance in the same way. Destroy scopes in the reverse order of their
/// construction.
template <class T>
class Shared {
public:
    /// Returns the instance, never null. Throws VelmarError::InternalError if none is installed and T is not
    /// default-constructible.
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

    /// Shares an instance for the lifetime of the scope, then restores the previous one.
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

        // The new instance, then the previous one. Released outside the lock.
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
