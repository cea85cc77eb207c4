#pragma once

#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/ConfigurationEnum.h>

#include <array>

namespace velmar::MonitorItems {

/// The kinds of monitors; the names to use are those within MonitorItem.
enum class TypeIdentifier { application, file };

constexpr auto casesOf(TypeIdentifier) {
    return std::to_array<EnumCase<TypeIdentifier>>(
        {{TypeIdentifier::application, "Application"}, {TypeIdentifier::file, "File"}});
}

/// The key that every monitor begins with.
struct MonitorItemProtocol {
    using IsKeyGroup = void;

    ConditionKeyWrapper _condition{"Condition", optional}; ///< Absent: "IsMandatory" decides what counts.
};

} // namespace velmar::MonitorItems
