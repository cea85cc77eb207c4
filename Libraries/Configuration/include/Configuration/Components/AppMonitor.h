#pragma once

#include <Configuration/ComponentItemProtocol.h>
#include <Configuration/InheritableKeyWrapper.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {
struct FontItem;
} // namespace velmar

namespace velmar::ComponentItems {

/// The list of the applications that are being installed.
struct AppMonitor {
    static constexpr std::string_view typeName = "ComponentItem.AppMonitor";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::appMonitor;

    ComponentItemProtocol common;
    InheritableKeyWrapper<std::optional<FontItem>> _nameFontConfiguration{"NameFontConfiguration", optional,
                                                                          &Library::fontStyles};
    InheritableKeyWrapper<std::optional<FontItem>> _detailFontConfiguration{"DetailFontConfiguration",
                                                                            optional, &Library::fontStyles};
    KeyWrapper<bool> _isMandatory{false, "IsMandatory", optional};
    KeyWrapper<std::optional<std::string>> _waitForApplicationToBeInstalledWarningText{
        "WaitForApplicationToBeInstalledWarningText", optional};
    KeyWrapper<bool> _showScroller{false, "ShowScroller", optional};
};

} // namespace velmar::ComponentItems
