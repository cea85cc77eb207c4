#pragma once

#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/ConfigurationEnum.h>

#include <array>

namespace velmar::MonitorItems {

/// Types of monitors. Code uses the aliases in MonitorItem.
enum class TypeIdentifier { application, file };

constexpr auto casesOf(TypeIdentifier) {
    return std::to_array<EnumCase<TypeIdentifier>>(
        {{TypeIdentifier::application, "Application"}, {TypeIdentifier::file, "File"}});
}

/// The key common to all monitors; the first member of each.
struct MonitorItemProtocol {
    using IsKeyGroup = void;

    ConditionKeyWrapper _condition{"Condition", optional}; ///< Absent: "IsMandatory" decides what counts.
};

} // namespace velmar::MonitorItems
