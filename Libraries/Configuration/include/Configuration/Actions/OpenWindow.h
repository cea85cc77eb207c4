#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <optional>
#include <string_view>

namespace velmar {
struct SizeItem;
struct SlideItem;
struct WindowPositionItem;
} // namespace velmar

namespace velmar::ActionItems {

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

} // namespace velmar::ActionItems
