#pragma once

#include <Configuration/ActionItemProtocol.h>
#include <Configuration/SizeItem.h>
#include <Configuration/URLCoding.h>
#include <Configuration/VariableKeyWrapper.h>
#include <Configuration/WindowPositionItem.h>

#include <cstdint>
#include <variant>
#include <vector>

namespace velmar {

struct SlideItem;

/// Actions that speak to the user, move the session on or change its state.
namespace ActionItems {

struct Log {
    static constexpr std::string_view typeName = "ActionItem.Log";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::log;

    ActionItemProtocol common;
    KeyWrapper<std::string> _message{"Message", required};
};

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

struct PlaySound {
    static constexpr std::string_view typeName = "ActionItem.PlaySound";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::playSound;

    ActionItemProtocol common;
    KeyWrapper<std::string> _soundNameOrFilePath{"SoundNameOrFilePath", required};
};

struct CopyToClipboard {
    static constexpr std::string_view typeName = "ActionItem.CopyToClipboard";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::copyToClipboard;

    ActionItemProtocol common;
    KeyWrapper<std::string> _text{"Text", required};
    KeyWrapper<bool> _log{true, "Log", optional};
};

struct OpenWindow {
    static constexpr std::string_view typeName = "ActionItem.OpenWindow";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::openWindow;

    ActionItemProtocol common;
    KeyWrapper<SlideItem> _slide{"Slide", required};
    KeyWrapper<std::optional<WindowPositionItem>> _position{"Position", optional};
    KeyWrapper<SizeItem> _size{"Size", required};
    KeyWrapper<bool> _isClosable{true, "IsClosable", optional};
    KeyWrapper<bool> _isMovable{true, "IsMovable", optional};
};

struct CloseOpenedWindow {
    static constexpr std::string_view typeName = "ActionItem.CloseOpenedWindow";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::closeOpenWindow;

    ActionItemProtocol common;
};

struct NavigateToSlide {
    static constexpr std::string_view typeName = "ActionItem.NavigateToSlide";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::navigateToSlide;

    /// Where to go.
    struct Jump {
        struct Index {
            std::int64_t index = 0; ///< Of a slide, from 0.
        };
        struct Offset {
            std::int64_t offset = 0; ///< From the slide on show.
        };
        std::variant<Index, Offset> value;
    };

    ActionItemProtocol common;
    KeyWrapper<std::optional<std::int64_t>> _index{"Index", requiredExcluding({"Offset"})};
    KeyWrapper<std::optional<std::int64_t>> _offset{"Offset", requiredExcluding({"Index"})};

    [[nodiscard]] Jump jump() const;

    /// There is a slide of that index. Throws ConfigurationError.
    void validateReferences(const Library &library) const;
};

struct UpdateVariable {
    static constexpr std::string_view typeName = "ActionItem.UpdateVariable";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::updateVariable;

    ActionItemProtocol common;
    VariableKeyWrapper<std::string> _variable{"Variable", required, &nameOfVariable};
    KeyWrapper<std::string> _newValue{"NewValue", required};

    /// The system's own variables are not an action's to change. Throws ConfigurationError.
    void validate(const CodingPath &path) const;
};

} // namespace ActionItems

} // namespace velmar

// Whole wherever a window is opened.
#include <Configuration/SlideItem.h>
