#pragma once

#include <AppDelegate/Services/WindowPlacement.h>
#include <Configuration/WindowSection.h>

#include <Desktop/ScreenCover.h>
#include <Desktop/Window.h>

#include <QSize>

#include <optional>

namespace velmar {

/// What the configuration's mode makes of the window, given the screens. Sizes in points.
struct WindowPresentation {
    Window::Style style;
    QSize content; ///< Never larger than the screen, on which nobody could reach what is beyond its edges.
    QSize minimum;
    QSize maximum;
    std::optional<QPoint> origin; ///< Of the frame; none where it depends on what the frame measures.
    bool isWholeScreen = false;
    std::optional<ScreenCover::Backing> cover; ///< What is behind the window, if every screen is covered.

    /// "MenuBar" counts as "Simple". Throws VelmarError::InternalError if there is no screen at all. A
    /// covering mode without a main screen covers nothing.
    [[nodiscard]] static WindowPresentation of(const WindowSection &section, const Screens &screens);
};

} // namespace velmar
