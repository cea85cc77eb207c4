#pragma once

#include <Configuration/ActionItemProtocol.h>
#include <Configuration/VariableKeyWrapper.h>

#include <string>
#include <string_view>

namespace velmar {
class CodingPath;
} // namespace velmar

namespace velmar::ActionItems {

struct UpdateVariable {
    static constexpr std::string_view typeName = "ActionItem.UpdateVariable";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::updateVariable;

    ActionItemProtocol common;
    VariableKeyWrapper<std::string> _variable{"Variable", required, &nameOfVariable};
    KeyWrapper<std::string> _newValue{"NewValue", required};

    /// Checks that the variable isn't one of Placeholders. Throws ConfigurationError.
    void validate(const CodingPath &path) const;
};

} // namespace velmar::ActionItems
