#include <Configuration/BorderItem.h>
#include <Configuration/Components/Input.h>
#include <Configuration/ConditionCoding.h>
#include <Configuration/FontItem.h>
#include <Configuration/ItemCoding.h>
#include <Configuration/MarginsItem.h>
#include <Configuration/RegularExpressionCoding.h>

#include <fmt/format.h>

namespace velmar {

void ComponentItems::Inputs::Checkboxes::declareVariables(
    const std::function<void(std::string)> &declare) const {
    const std::string_view name = bareVariableName(input._variable.rawValue());
    for (std::size_t index = 0; index < _items.rawValue().size(); ++index) {
        declare(fmt::format("{}-{}", name, index));
    }
}

template struct ItemCoding<ComponentItems::Inputs::Checkboxes>;
template struct ItemCoding<ComponentItems::Inputs::List>;
template struct ItemCoding<ComponentItems::Inputs::Text>;
template struct TaggedItemCoding<ComponentItems::Input>;

template VariableNames usedVariables(const ComponentItems::Input &);

} // namespace velmar
