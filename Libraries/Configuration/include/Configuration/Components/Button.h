#pragma once

#include <Configuration/ComponentItemProtocol.h>
#include <Configuration/EdgeItem.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/TextAlignment.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace velmar {
struct ActionSetItem;
struct ColorItem;
struct FontItem;
struct SizeItem;
} // namespace velmar

namespace velmar::ComponentItems {

struct Button {
    static constexpr std::string_view typeName = "ComponentItem.Button";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::button;

    enum class Style { simple, info };
    friend constexpr auto casesOf(Style) {
        return std::to_array<EnumCase<Style>>({{Style::simple, "Simple"}, {Style::info, "Info"}});
    }

    /// A popover of the button, with a text of its own or that of a file.
    struct Popover {
        static constexpr std::string_view typeName = "ComponentItem.Button.Popover";

        KeyWrapper<EdgeItem> _edge{EdgeItem::top, "Edge", required};
        KeyWrapper<std::optional<std::string>> _text{"Text", requiredIfNotSpecified({"FilePath"})};
        KeyWrapper<std::optional<std::string>> _filePath{"FilePath", requiredIfNotSpecified({"Text"})};
        InheritableKeyWrapper<std::optional<FontItem>> _font{"Font", optional, &Library::fontStyles};
        KeyWrapper<std::optional<SizeItem>> _size{"Size", optional};
    };

    ComponentItemProtocol common;
    KeyWrapper<Style> _style{Style::simple, "Style", required};
    KeyWrapper<std::optional<std::string>> _text{"Text", optional};
    KeyWrapper<TextAlignment> _alignment{TextAlignment::left, "Alignment", optional};
    InheritableKeyWrapper<std::optional<ColorItem>> _color{"Color", optional, &Library::colorStyles};
    KeyWrapper<std::optional<ActionSetItem>> _onClick{"OnClick", optional};
    KeyWrapper<std::optional<Popover>> _popover{"Popover", optional};
    KeyWrapper<std::optional<std::string>> _trigger{"Trigger", optional}; ///< The name of a custom trigger.
};

} // namespace velmar::ComponentItems
