#include <ItemVisitor.h>

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace velmar {

namespace {

template <class T>
const T &whole(const T &value) {
    return value;
}
template <class T>
const T &whole(const std::optional<T> &value) {
    return *value; // A key that is given has a value.
}

// Calls `next` with the value of the key and its place, if the item gives it.
template <class Key, class Next>
void follow(const Key &key, const ItemPlace &item, Next next) {
    const std::string_view name = key.name().stringValue;
    if (const PropertyListValue *const value = item.value.find(name)) {
        const CodingPath path(item.path, name);
        next(whole(key.rawValue()), ItemPlace{*value, path});
    }
}

// The same with each element of the key's list.
template <class Key, class Next>
void followEach(const Key &key, const ItemPlace &item, Next next) {
    follow(key, item, [&](const auto &elements, const ItemPlace &list) {
        for (std::size_t index = 0; index < elements.size(); ++index) {
            const CodingPath path(list.path, index);
            next(elements[index], ItemPlace{list.value.elements()[index], path});
        }
    });
}

class Walk {
public:
    explicit Walk(ItemVisitor &visitor) : visitor_(visitor) {}

    void configuration(const Configuration &configuration, const ItemPlace &place) const {
        follow(configuration._appTermination, place,
               [&](const auto &section, const ItemPlace &at) { visitor_.visitAppTermination(section, at); });
        follow(configuration._window, place,
               [&](const auto &section, const ItemPlace &at) { visitor_.visitWindow(section, at); });
        followEach(configuration._slides, place,
                   [&](const auto &item, const ItemPlace &at) { slide(item, at); });
        follow(configuration._menuBarSlideSection, place,
               [&](const auto &item, const ItemPlace &at) { slide(item, at); });
        follow(configuration._sideContainer, place, [&](const auto &section, const ItemPlace &at) {
            follow(section._container, at,
                   [&](const auto &item, const ItemPlace &inner) { container(item, inner); });
        });
        follow(configuration._monitoring, place, [&](const auto &section, const ItemPlace &at) {
            followEach(section._monitors, at,
                       [&](const auto &item, const ItemPlace &inner) { visitor_.visitMonitor(item, inner); });
        });
        followEach(configuration._actionSets, place, [&](const auto &item, const ItemPlace &at) {
            actionSet(item.set, at);
            followEach(item._triggers, at, [&](const auto &trigger, const ItemPlace &inner) {
                visitor_.visitTrigger(trigger, inner);
            });
        });
    }

private:
    void slide(const SlideItem &item, const ItemPlace &place) const {
        followEach(item._containers, place,
                   [&](const auto &inner, const ItemPlace &at) { container(inner, at); });
    }

    void container(const ContainerItem &item, const ItemPlace &place) const {
        visitor_.visitContainer(item, place);
        followEach(item._components, place,
                   [&](const auto &inner, const ItemPlace &at) { component(inner, at); });
    }

    void component(const ComponentItem &item, const ItemPlace &place) const {
        visitor_.visitComponent(item, place);
        if (const auto *const button = std::get_if<ComponentItem::Button>(&item.value)) {
            follow(button->_onClick, place,
                   [&](const auto &inner, const ItemPlace &at) { actionSet(inner.set, at); });
        }
    }

    void actionSet(const ActionSetItemProtocol &set, const ItemPlace &place) const {
        followEach(set._actions, place, [&](const auto &inner, const ItemPlace &at) { action(inner, at); });
    }

    void action(const ActionItem &item, const ItemPlace &place) const {
        visitor_.visitAction(item, place);
        if (const auto *const window = std::get_if<ActionItem::OpenWindow>(&item.value)) {
            follow(window->_slide, place, [&](const auto &inner, const ItemPlace &at) { slide(inner, at); });
        }
        if (const auto *const notification = std::get_if<ActionItem::DisplayNotification>(&item.value)) {
            followEach(notification->_actions, place, [&](const auto &inner, const ItemPlace &at) {
                visitor_.visitNotificationAction(inner, at);
            });
        }
    }

    ItemVisitor &visitor_;
};

} // namespace

UsageWarning ItemPlace::warning(std::string message) const {
    return {path.text(), value.offset(), std::move(message)};
}

UsageWarning ItemPlace::warning(std::string_view key, std::string message) const {
    return {CodingPath(path, key).text(), value.find(key)->offset(), std::move(message)};
}

void visitItems(const Configuration &configuration, const PropertyListValue &file, ItemVisitor &visitor) {
    const CodingPath root;
    Walk(visitor).configuration(configuration, {file, root});
}

} // namespace velmar
