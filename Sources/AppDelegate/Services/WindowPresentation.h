#pragma once

#include <AppDelegate/Services/WindowPlacement.h>
#include <Configuration/WindowSection.h>

#include <Desktop/ScreenCover.h>
#include <Desktop/Window.h>

#include <QSize>

#include <optional>

namespace velmar {

/// Geometry and style of the window for the configured mode and the screens. Sizes in points.
struct WindowPresentation {
    Window::Style style;
    QSize content; ///< Never larger than the screen.
    QSize minimum;
    QSize maximum;
    std::optional<QPoint> origin; ///< Origin of the frame; nullopt if it depends on the frame's size.
    bool isWholeScreen = false;
    std::optional<ScreenCover::Backing> cover; ///< Background behind the window if all screens are covered.

    /// Returns the presentation for the mode of `section`; "MenuBar" is treated as "Simple". A covering mode
    /// without a main screen covers nothing. Throws VelmarError::InternalError if there is no screen.
    [[nodiscard]] static WindowPresentation of(const WindowSection &section, const Screens &screens);
};

} // namespace velmar
