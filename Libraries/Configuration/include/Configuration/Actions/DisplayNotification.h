#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::ActionItems {

struct DisplayNotification {
    static constexpr std::string_view typeName = "ActionItem.DisplayNotification";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::displayNotification;

    struct NotificationAction {
        static constexpr std::string_view typeName = "ActionItem.DisplayNotification.NotificationAction";

        KeyWrapper<std::string> _title{"Title", required};
        KeyWrapper<std::string> _trigger{"Trigger", required}; ///< The name of a custom trigger.
    };

    ActionItemProtocol common;
    KeyWrapper<std::string> _title{"Title", required};
    KeyWrapper<std::optional<std::string>> _body{"Body", optional};
    KeyWrapper<std::optional<std::string>> _soundName{"SoundName", optional};
    KeyWrapper<std::vector<NotificationAction>> _actions{"Actions", required};
};

} // namespace velmar::ActionItems
