#pragma once

#include <Configuration/KeyWrapper.h>
#include <Configuration/OnScreen.h>
#include <Configuration/SizeItem.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmar {

struct WindowPositionItem;

/// The window and its place on the screen. Sizes in points.
struct WindowSection {
    static constexpr std::string_view typeName = "WindowSection";

    using OnScreen = velmar::OnScreen;

    KeyWrapper<SizeItem> _minimumSize{SizeItem::of(600, 800), "MinimumSize", optional};
    KeyWrapper<SizeItem> _maximumSize{SizeItem::of(768, 1280), "MaximumSize", optional};
    KeyWrapper<SizeItem> _menuBarSize{SizeItem::of(600, 800), "MenuBarSize", optional};
    KeyWrapper<bool> _isClosable{true, "IsClosable", optional};
    KeyWrapper<bool> _isResizable{true, "IsResizable", optional};
    KeyWrapper<bool> _isMovable{true, "IsMovable", optional};
    KeyWrapper<bool> _hideTitleBar{false, "IsTitleBarHidden", optional};
    KeyWrapper<std::optional<std::string>> _title{"Title", optional};
    KeyWrapper<WindowPositionItem> _position{"Position", optional};
    KeyWrapper<std::optional<std::int64_t>> _screenIndex{"ScreenIndex", optional};
    KeyWrapper<OnScreen> _onScreen{OnScreen::simple, "OnScreen", required};
    KeyWrapper<std::optional<std::string>> _menuBarIconPath{"MenuBarIconPath", optional};
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
