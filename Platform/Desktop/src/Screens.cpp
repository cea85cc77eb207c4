#include <Desktop/Screens.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include <utility>

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

class ScreensObserver::Connections final : public QObject {
public:
    explicit Connections(std::function<void()> changed) {
        later_.setSingleShot(true);
        connect(&later_, &QTimer::timeout, this, std::move(changed));
        connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
            follow(*screen);
            later_.start();
        });
        connect(qGuiApp, &QGuiApplication::screenRemoved, &later_, qOverload<>(&QTimer::start));
        connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &later_, qOverload<>(&QTimer::start));
        for (const QScreen *screen : QGuiApplication::screens()) {
            follow(*screen);
        }
    }

private:
    void follow(const QScreen &screen) {
        connect(&screen, &QScreen::geometryChanged, &later_, qOverload<>(&QTimer::start));
    }

    QTimer later_;
};

ScreensObserver::ScreensObserver(std::function<void()> changed)
    : connections_(std::make_unique<Connections>(std::move(changed))) {}

ScreensObserver::~ScreensObserver() = default;

} // namespace velmar
