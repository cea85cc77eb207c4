#pragma once

#include <Configuration/ActionItemProtocol.h>
#include <Configuration/PopulatableURL.h>
#include <Configuration/VariableKeyWrapper.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::ActionItems {

struct DisplayAlert {
    static constexpr std::string_view typeName = "ActionItem.DisplayAlert";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::displayAlert;

    enum class Style { informational, warning, critical };
    friend constexpr auto casesOf(Style) {
        return std::to_array<EnumCase<Style>>({{Style::informational, "Informational"},
                                               {Style::warning, "Warning"},
                                               {Style::critical, "Critical"}});
    }

    ActionItemProtocol common;
    KeyWrapper<std::string> _title{"Title", required};
    KeyWrapper<std::string> _message{"Message", required};
    KeyWrapper<Style> _style{Style::informational, "Style", required};
    KeyWrapper<std::vector<std::string>> _buttonsText{"ButtonsText", optional};
    VariableKeyWrapper<std::optional<std::string>> _variable{"Variable", optional, &nameOfVariable};
    KeyWrapper<std::optional<URL>> _iconPath{"IconPath", optional};
};

} // namespace velmar::ActionItems
