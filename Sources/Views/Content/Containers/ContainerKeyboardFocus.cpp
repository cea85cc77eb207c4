#include <Views/Content/Containers/ContainerKeyboardFocus.h>

#include <Views/Content/Components/Base.h>
#include <Views/CustomViews/KeyboardFocus.h>

#include <algorithm>
#include <map>
#include <utility>

namespace velmar {

void ContainerKeyboardFocus::takeAway() {
    if (QWidget *focused = container_.window()->focusWidget();
        focused != nullptr && column_.isAncestorOf(focused)) {
        unfocused_ = focused;
        focused->clearFocus();
    }
}

void ContainerKeyboardFocus::giveBack(const std::vector<ComponentView *> &views) {
    const auto unfocused = std::exchange(unfocused_, std::nullopt);
    // A handler of the focus loss may have moved the focus.
    if (!unfocused || container_.window()->focusWidget() != nullptr) {
        return;
    }
    QWidget *former = *unfocused;
    const bool stays = former != nullptr && former->isEnabled() &&
                       std::ranges::any_of(views, [former](const ComponentView *view) {
                           return view != nullptr && view->isAncestorOf(former);
                       });
    if (stays) {
        former->setFocus();
    } else {
        giveFocusToSurroundings(container_);
    }
}

void ContainerKeyboardFocus::orderTabStops(const std::vector<ComponentView *> &views) {
    std::map<const QWidget *, std::vector<QWidget *>> stops; // By containing view.
    for (QWidget *stop = scrollArea_.nextInFocusChain(); stop != &scrollArea_;
         stop = stop->nextInFocusChain()) {
        if (stop->focusPolicy() != Qt::NoFocus && column_.isAncestorOf(stop)) {
            const QWidget *view = stop;
            while (view->parentWidget() != &column_) {
                view = view->parentWidget();
            }
            stops[view].push_back(stop);
        }
    }
    // setTabOrder() ignores widgets without a focus policy.
    const Qt::FocusPolicy policy = scrollArea_.focusPolicy();
    scrollArea_.setFocusPolicy(Qt::TabFocus);
    QWidget *last = &scrollArea_;
    for (const ComponentView *view : views) {
        for (QWidget *stop : stops[view]) {
            QWidget::setTabOrder(last, stop);
            last = stop;
        }
    }
    scrollArea_.setFocusPolicy(policy);
}

} // namespace velmar
