#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace velmar {

class NotificationCenter;

/// Owns one registration with a notification centre. The destructor ends the registration. May outlive the
/// centre.
class NotificationObserver {
public:
    NotificationObserver() = default;
    NotificationObserver(NotificationObserver &&) noexcept = default;
    NotificationObserver &operator=(NotificationObserver &&) noexcept;
    ~NotificationObserver();

private:
    friend class NotificationCenter;
    struct Registration;
    explicit NotificationObserver(std::shared_ptr<Registration> registration);
    std::shared_ptr<Registration> registration_;
};

/// Named notifications within the process. post() is synchronous: it calls all observers of the name on the
/// calling thread, in the order of registration, before it returns. A handler may post, add and remove
/// observers. An observer removed during a post is not called any more. Thread-safe.
///
/// Ending a registration doesn't wait for a handler that is running on another thread. A handler must
/// therefore hold its owner weakly and do nothing once the owner is destroyed. It must not capture `this` of
/// an object that can be destroyed while other threads post.
class NotificationCenter {
public:
    using Handler = std::function<void()>;

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    [[nodiscard]] NotificationObserver addObserver(std::string name, Handler handler);

    /// Calls all observers of the name, even if some throw. Rethrows the first exception afterwards.
    void post(std::string_view name);

    /// Returns the shared instance of the process.
    static NotificationCenter &defaultCenter();

private:
    friend class NotificationObserver;
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace velmar
