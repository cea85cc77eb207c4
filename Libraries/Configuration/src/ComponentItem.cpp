#include <Configuration/ComponentItem.h>

#include <Configuration/ItemGroups.h>

#include <fmt/format.h>

namespace velmar {

void ComponentItem::Input::Checkboxes::declareVariables(
    const std::function<void(std::string)> &declare) const {
    const std::string_view name = bareVariableName(input._variable.rawValue());
    for (std::size_t index = 0; index < _items.rawValue().size(); ++index) {
        declare(fmt::format("{}-{}", name, index));
    }
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

VariableNames usedVariables(const ComponentItem &component) {
    return usedVariables<ComponentItem>(component);
}

template struct TaggedItemCoding<ComponentItem>;

} // namespace velmar
