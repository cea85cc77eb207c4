#include <Desktop/MainMenu.h>

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
    if (observer_) {
        observer_();
    }
}

void MainMenu::removeItems(int tag) {
    std::vector<MenuItem> items = items_;
    removeTagged(items, tag);
    setItems(std::move(items));
}

} // namespace velmar
