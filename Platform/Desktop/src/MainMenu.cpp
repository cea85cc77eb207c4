#include <Desktop/MainMenu.h>

#include <utility>

namespace velmar {

namespace {

void removeTagged(std::vector<MenuItem> &items, int tag) {
    std::erase_if(items, [tag](const MenuItem &item) { return item.tag == tag; });
    for (MenuItem &item : items) {
        removeTagged(item.submenu, tag);
    }
}

} // namespace

void MainMenu::setItems(std::vector<MenuItem> items) {
    items_ = std::move(items);
    std::erase_if(observers_, [](const auto &observer) { return observer.expired(); });
    // Iterates over a copy, since an observer may end another observation.
    for (const auto &each : std::vector(observers_)) {
        if (const Observation observer = each.lock()) {
            (*observer)();
        }
    }
}

MainMenu::Observation MainMenu::observe(std::function<void()> observer) {
    auto observation = std::make_shared<const std::function<void()>>(std::move(observer));
    observers_.push_back(observation);
    return observation;
}

void MainMenu::removeItems(int tag) {
    std::vector<MenuItem> items = items_;
    removeTagged(items, tag);
    setItems(std::move(items));
}

} // namespace velmar
