#pragma once

#include <Base/Shared.h>
#include <Dispatch/ThreadSafe.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace velmar {

/// Observer of the navigation requests of actions. Called on the threads of the actions.
class SlideNavigationObserver {
public:
    virtual ~SlideNavigationObserver() = default;
    /// Requests the slide at an index, counted from 0; the index may be out of range.
    virtual void navigateToIndex(std::int64_t index) = 0;
    /// Requests a slide relative to the current one; a negative offset navigates backward.
    virtual void navigateByOffset(std::int64_t offset) = 0;
};

/// Forwards the navigation requests of actions to the observers, in the order of registration. Observers are
/// held weakly. The process shares one instance. Thread-safe.
class SlidesActionManager {
public:
    [[nodiscard]] static std::shared_ptr<SlidesActionManager> shared() {
        return Shared<SlidesActionManager>::instance();
    }

    void addObserver(std::weak_ptr<SlideNavigationObserver> observer);
    void navigateToIndex(std::int64_t index) const;
    void navigateByOffset(std::int64_t offset) const;

private:
    using Observers = std::vector<std::weak_ptr<SlideNavigationObserver>>;

    void tellObservers(void (SlideNavigationObserver::*request)(std::int64_t), std::int64_t number) const;

    ThreadSafe<Observers> _observers{{}, "SlidesActionManager.observers"};
};

} // namespace velmar
