#include <Desktop/Screens.h>

#include <QGuiApplication>
#include <QScreen>

namespace velmar {

namespace {

ScreenFrame frame(const QScreen &screen) {
    const QRect geometry = screen.geometry();
    return {geometry.x(), geometry.y(), geometry.width(), geometry.height()};
}

} // namespace

Screens Screens::current() {
    Screens screens;
    for (const QScreen *screen : QGuiApplication::screens()) {
        screens.frames.push_back(frame(*screen));
    }
    if (const QScreen *main = QGuiApplication::primaryScreen()) {
        screens.main = frame(*main);
    }
    return screens;
}

} // namespace velmar
