#include <Configuration/MonitorItem.h>

#include <Configuration/ConditionCoding.h>
#include <Configuration/ItemCoding.h>
#include <Configuration/URLCoding.h>
#include <Foundation/UnicodeText.h>

#include <algorithm>

namespace velmar {

std::string MonitorItems::App::stateVariableName(std::string_view name) {
    std::string variable = UnicodeText::uppercased(name);
    std::ranges::replace(variable, ' ', '_');
    return variable + "_INSTALLATION_STATE";
}

const std::optional<Expression> &MonitorItem::condition() const {
    return std::visit(
        [](const auto &monitor) -> decltype(auto) { return monitor.common._condition.rawValue(); }, value);
}

template struct ItemCoding<MonitorItems::App>;
template struct ItemCoding<MonitorItems::File>;
template struct TaggedItemCoding<MonitorItem>;

} // namespace velmar
