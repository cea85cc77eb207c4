#pragma once

#include <Configuration/ConfigurationEnum.h>

#include <array>

namespace velmar {

/// The presentation of the session on the desktop.
enum class OnScreen { simple, blurredBackground, fullScreen, menuBar };

constexpr auto casesOf(OnScreen) {
    return std::to_array<EnumCase<OnScreen>>({{OnScreen::simple, "Simple"},
                                              {OnScreen::blurredBackground, "BlurredBackground"},
                                              {OnScreen::fullScreen, "FullScreen"},
                                              {OnScreen::menuBar, "MenuBar"}});
}

} // namespace velmar
