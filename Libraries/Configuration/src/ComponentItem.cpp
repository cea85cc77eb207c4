#include <Configuration/ComponentItem.h>

#include <Configuration/ItemCoding.h>

namespace velmar {

ComponentItems::TypeIdentifier typeIdentifierOf(const ComponentItem &component) {
    return std::visit([](const auto &alternative) { return alternative.typeIdentifier; }, component.value);
}

const ComponentItem::ComponentItemProtocol &ComponentItem::common() const {
    return std::visit(
        [](const auto &component) -> const ComponentItemProtocol & {
            if constexpr (requires { component.common; }) {
                return component.common;
            } else {
                return std::visit(
                    [](const auto &input) -> const ComponentItemProtocol & { return input.common; },
                    component.value);
            }
        },
        value);
}

template <class Item>
const Item *itemOf(const ComponentItem &component) {
    return std::get_if<Item>(&component.value);
}

template const ComponentItems::AppMonitor *itemOf(const ComponentItem &);
template const ComponentItems::Button *itemOf(const ComponentItem &);
template const ComponentItems::Image *itemOf(const ComponentItem &);
template const ComponentItems::Input *itemOf(const ComponentItem &);
template const ComponentItems::PDF *itemOf(const ComponentItem &);
template const ComponentItems::Spacer *itemOf(const ComponentItem &);
template const ComponentItems::Text *itemOf(const ComponentItem &);
template const ComponentItems::Video *itemOf(const ComponentItem &);
template const ComponentItems::Web *itemOf(const ComponentItem &);

template struct TaggedItemCoding<ComponentItem>;

template VariableNames usedVariables(const ComponentItem &);

} // namespace velmar
