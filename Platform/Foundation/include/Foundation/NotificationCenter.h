#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace velmar {

class NotificationCenter;

/// Owns one registration with a centre: destroying it ends the registration. It may outlive the centre.
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

/// Named notifications within the process. Posting is synchronous: every observer of the name has run, on the
/// poster's thread and in the order of registration, when `post` returns. An observer may post, add and
/// remove in its turn; one that is removed during a post is not called any more. Any thread.
///
/// The end of a registration doesn't wait for a handler that runs on another thread at that moment. So a
/// handler holds its owner weakly and does nothing once it is gone; it never captures `this` of an object
/// that may go while others post.
class NotificationCenter {
public:
    using Handler = std::function<void()>;

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    [[nodiscard]] NotificationObserver addObserver(std::string name, Handler handler);

    /// Calls the name's observers, all of them also if some throw; the first exception is thrown at the end.
    void post(std::string_view name);

    /// The centre of the process.
    static NotificationCenter &defaultCenter();

private:
    friend class NotificationObserver;
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace velmar
