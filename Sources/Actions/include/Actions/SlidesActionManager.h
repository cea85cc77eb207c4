#pragma once

#include <Base/Shared.h>
#include <Dispatch/ThreadSafe.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace velmar {

/// Who moves between the slides when actions ask for it. Called on the threads of the actions.
class SlideNavigationObserver {
public:
    virtual ~SlideNavigationObserver() = default;
    /// To the slide at an index, from 0; there need not be one.
    virtual void navigateToIndex(std::int64_t index) = 0;
    /// From the slide on show, forward or backward.
    virtual void navigateByOffset(std::int64_t offset) = 0;
};

/// Passes the requests of actions on to whoever shows the slides, in the order of registration. Observers are
/// held weakly. One instance is shared by the process. Any thread.
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
