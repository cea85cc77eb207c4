#include <Configuration/MonitorItem.h>

#include <Configuration/ItemGroups.h>
#include <Foundation/UnicodeText.h>

#include <algorithm>

namespace velmar {

std::string MonitorItem::App::stateVariableName(std::string_view name) {
    std::string variable = UnicodeText::uppercased(name);
    std::ranges::replace(variable, ' ', '_');
    return variable + "_INSTALLATION_STATE";
}

template struct TaggedItemCoding<MonitorItem>;

} // namespace velmar
