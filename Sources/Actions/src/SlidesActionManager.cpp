#include <Actions/SlidesActionManager.h>

#include <utility>

namespace velmar {

void SlidesActionManager::addObserver(std::weak_ptr<SlideNavigationObserver> observer) {
    _observers.mutate([&](Observers &observers) {
        std::erase_if(observers, [](const auto &each) { return each.expired(); });
        observers.push_back(std::move(observer));
    });
}

void SlidesActionManager::navigateToIndex(std::int64_t index) const {
    tellObservers(&SlideNavigationObserver::navigateToIndex, index);
}

void SlidesActionManager::navigateByOffset(std::int64_t offset) const {
    tellObservers(&SlideNavigationObserver::navigateByOffset, offset);
}

void SlidesActionManager::tellObservers(void (SlideNavigationObserver::*request)(std::int64_t),
                                        std::int64_t number) const {
    for (const auto &each : _observers.value()) {
        if (const auto observer = each.lock()) {
            (observer.get()->*request)(number);
        }
    }
}

} // namespace velmar
