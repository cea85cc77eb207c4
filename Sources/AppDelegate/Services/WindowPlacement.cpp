#include <AppDelegate/Services/WindowPlacement.h>

#include <Base/VelmarError.h>

#include <Desktop/Window.h>

#include <algorithm>
#include <cmath>

namespace velmar::WindowPlacement {

namespace {

constexpr double menuBarHeight = 22; // Points, reserved at the top of every screen.

// A padding may be any number; the display server limits coordinates to 16 bits.
int coordinate(double value) {
    return static_cast<int>(std::lround(std::clamp(value, -32768.0, 32767.0)));
}

} // namespace

ScreenFrame chooseScreen(const Screens &screens, std::optional<std::int64_t> index) {
    if (index && *index >= 0 && static_cast<std::uint64_t>(*index) < screens.frames.size()) {
        return screens.frames[static_cast<std::size_t>(*index)];
    }
    if (!screens.main) {
        throw VelmarError(VelmarError::InternalError{"Unable to retrieve a screen"});
    }
    return *screens.main;
}

Origin originOf(const WindowPositionItem &position, int width, int height, const ScreenFrame &screen) {
    const double padding = position._padding();
    double x = screen.x;
    switch (position._horizontal()) {
    case WindowPositionItem::Horizontal::left:
        x += padding;
        break;
    case WindowPositionItem::Horizontal::center:
        x += (screen.width - width) / 2.0;
        break;
    case WindowPositionItem::Horizontal::right:
        x += screen.width - width - padding;
        break;
    }
    double y = screen.y;
    switch (position._vertical()) {
    case WindowPositionItem::Vertical::top:
        y += padding + menuBarHeight;
        break;
    case WindowPositionItem::Vertical::center:
        y += (screen.height - height) / 2.0;
        break;
    case WindowPositionItem::Vertical::bottom:
        y += screen.height - height - padding;
        break;
    }
    return {coordinate(x), coordinate(y)};
}

void place(Window &window, const WindowPositionItem &position, const ScreenFrame &screen) {
    const QSize size = window.frameSize();
    const auto [x, y] = originOf(position, size.width(), size.height(), screen);
    window.moveFrame({x, y});
}

} // namespace velmar::WindowPlacement
