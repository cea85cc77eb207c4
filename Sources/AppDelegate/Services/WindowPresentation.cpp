#include <AppDelegate/Services/WindowPresentation.h>

#include <Views/CustomViews/Pixels.h>

namespace velmar {

namespace {

using OnScreen = WindowSection::OnScreen;

// Style of a window without title bar that can't be closed, resized or moved.
constexpr Window::Style bare{.hasTitleBar = false,
                             .isClosable = false,
                             .isResizable = false,
                             .isMovable = false,
                             .rank = Window::Style::Rank::front};

WindowPresentation simple(const WindowSection &section, QSize room) {
    // The initial size is the minimum size.
    const QSize minimum = pixels(section._minimumSize()).boundedTo(room);
    return {.style = {.hasTitleBar = !section._hideTitleBar(),
                      .isClosable = section._isClosable(),
                      .isResizable = section._isResizable(),
                      .isMovable = section._isMovable()},
            .content = minimum,
            .minimum = minimum,
            .maximum = pixels(section._maximumSize()),
            .origin = {},
            .cover = {}};
}

WindowPresentation blurredBackground(const WindowSection &section, const ScreenFrame &main) {
    const QSize maximum = pixels(section._maximumSize()).boundedTo({main.width, main.height});
    const QPoint middle(main.x + main.width / 2, main.y + main.height / 2);
    return {.style = bare,
            .content = maximum,
            .minimum = pixels(section._minimumSize()).boundedTo(maximum),
            .maximum = maximum,
            .origin = middle - QPoint(maximum.width() / 2, maximum.height() / 2),
            .cover = ScreenCover::Backing::blurred};
}

WindowPresentation wholeScreen(const WindowSection &section, const ScreenFrame &screen) {
    const QSize size(screen.width, screen.height);
    WindowPresentation result{.style = bare,
                              .content = size,
                              .minimum = pixels(section._minimumSize()).boundedTo(size),
                              .maximum = size,
                              .origin = QPoint(screen.x, screen.y),
                              .isWholeScreen = true,
                              .cover = ScreenCover::Backing::plain};
    result.style.isRound = false;
    return result;
}

} // namespace

WindowPresentation WindowPresentation::of(const WindowSection &section, const Screens &screens) {
    const ScreenFrame chosen = WindowPlacement::chooseScreen(screens, section._screenIndex());
    const OnScreen mode = section._onScreen();
    if (mode == OnScreen::simple || mode == OnScreen::menuBar) {
        return simple(section, {chosen.width, chosen.height});
    }
    if (!screens.main) {
        WindowPresentation result = wholeScreen(section, chosen);
        result.cover.reset();
        return result;
    }
    return mode == OnScreen::fullScreen ? wholeScreen(section, *screens.main)
                                        : blurredBackground(section, *screens.main);
}

} // namespace velmar
