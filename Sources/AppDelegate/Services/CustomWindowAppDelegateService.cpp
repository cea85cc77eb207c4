#include <AppDelegate/Services/CustomWindowAppDelegateService.h>

#include <AppDelegate/Services/WindowPlacement.h>

#include <Desktop/Window.h>
#include <fmt/core.h>
#include <logger/Logger.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace velmar {

namespace {

QSize sizeOf(const SizeItem &item) {
    // Neither nothing nor more than a display server's window can have.
    const auto side = [](double points) {
        return static_cast<int>(std::lround(std::clamp(points, 1.0, 16384.0)));
    };
    return {side(item._width()), side(item._height())};
}

void logIfNotAvailable(WindowSection::OnScreen onScreen) {
    for (const auto &[mode, rawString] : casesOf(onScreen)) {
        if (mode == onScreen && mode != WindowSection::OnScreen::simple) {
            Logger::error([&] {
                return fmt::format(
                    "The mode '{}' of 'Window.OnScreen' is not available yet. The window is shown as "
                    "in the mode 'Simple'",
                    rawString);
            });
        }
    }
}

} // namespace

CustomWindowAppDelegateService::CustomWindowAppDelegateService(Surroundings surroundings)
    : surroundings_(std::move(surroundings)) {}

CustomWindowAppDelegateService::~CustomWindowAppDelegateService() = default;

void CustomWindowAppDelegateService::applicationDidFinishLaunching() {
    const auto section = _windowConfig.wrappedValue();
    logIfNotAvailable(section->_onScreen());
    const ScreenFrame screen =
        WindowPlacement::chooseScreen(surroundings_.screens(), section->_screenIndex());
    window_ = std::make_unique<Window>(Window::Style{.hasTitleBar = !section->_hideTitleBar(),
                                                     .isClosable = section->_isClosable(),
                                                     .isResizable = section->_isResizable(),
                                                     .isMovable = section->_isMovable()},
                                       surroundings_.mainMenu);
    controller_ = new VelmarViewController(surroundings_.view, window_.get());
    window_->setContent(controller_);
    // A window opens at its smallest.
    const QSize minimum = sizeOf(section->_minimumSize());
    window_->setSizes(minimum, minimum, sizeOf(section->_maximumSize()));
    // An empty title would be replaced by one that the window manager makes up.
    const std::optional<std::string> title = section->_title();
    window_->setWindowTitle(title && !title->empty() ? QString::fromStdString(*title) : QString(QChar::Nbsp));
    window_->setAccessibleName(title ? QString::fromStdString(*title) : QCoreApplication::applicationName());

    const WindowPositionItem position = section->_position();
    place(position, screen);
    QObject::connect(window_.get(), &Window::framed, window_.get(),
                     [this, position, screen] { place(position, screen); });
    QObject::connect(window_.get(), &Window::firstPainted, window_.get(),
                     [this] { surroundings_.didPaint(); });
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void CustomWindowAppDelegateService::place(const WindowPositionItem &position, const ScreenFrame &screen) {
    const QSize size = window_->frameSize();
    const auto [x, y] = WindowPlacement::originOf(position, size.width(), size.height(), screen);
    window_->moveFrame({x, y});
}

} // namespace velmar
