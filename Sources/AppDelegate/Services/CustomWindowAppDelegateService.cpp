#include <AppDelegate/Services/CustomWindowAppDelegateService.h>

#include <AppDelegate/Services/MenuBarIcon.h>
#include <AppDelegate/Services/WindowPresentation.h>
#include <Views/CustomViews/Pixels.h>

#include <Desktop/Popover.h>
#include <Desktop/ScreenCover.h>
#include <Desktop/StatusItem.h>
#include <Desktop/StatusItemPlace.h>
#include <Desktop/Window.h>
#include <logger/Logger.h>

#include <fmt/format.h>

#include <QApplication>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <utility>

namespace velmar {

namespace {

using OnScreen = WindowSection::OnScreen;

constexpr int untilTriedAgain = 500; // Milliseconds.

bool isOnSomeScreen(QPoint point, const Screens &screens) {
    return std::any_of(screens.frames.begin(), screens.frames.end(), [&](const ScreenFrame &screen) {
        return QRect(screen.x, screen.y, screen.width, screen.height).contains(point);
    });
}

void logUnequalFight(const std::string &application, bool asksForPassword) {
    Logger::warning([&] {
        return fmt::format(
            "{} {} and is left alone until it rests",
            application.empty() ? "A program without a name" : fmt::format("The program '{}'", application),
            asksForPassword ? "has a dialog for a password that can't be brought above the window"
                            : "comes above the window or takes the keyboard again and again");
    });
}

} // namespace

CustomWindowAppDelegateService::CustomWindowAppDelegateService(const Services &services,
                                                               VelmarViewController::Application application,
                                                               Desktop desktop)
    : services_(services), application_(std::move(application)), desktop_(std::move(desktop)) {
    standInLater_.setSingleShot(true);
    QObject::connect(&standInLater_, &QTimer::timeout, [this] { standInForStatusItem(); });
}

CustomWindowAppDelegateService::~CustomWindowAppDelegateService() = default;

void CustomWindowAppDelegateService::applicationDidFinishLaunching() {
    if (_windowConfig.wrappedValue()->_onScreen() != OnScreen::menuBar) {
        buildWindow();
    } else {
        statusItemPlace_ = std::make_unique<StatusItemPlace>(
            [this](bool isThere) { isThere ? configureMenuBar() : standInForStatusItem(); });
    }
}

void CustomWindowAppDelegateService::standInForStatusItem() {
    // Postponed: an alert or a menu would be closed with the popover, and a window needs a screen.
    if (statusItem_ != nullptr &&
        (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr ||
         desktop_.screens().frames.empty())) {
        standInLater_.start(untilTriedAgain);
        return;
    }
    Logger::error(
        statusItem_ == nullptr
            ? "The mode 'MenuBar' of 'Window.OnScreen' is not available: the desktop has no place for "
              "status items. The window is shown as in the mode 'Simple'"
            : "The desktop has no place for status items any more. The session goes on in a window as "
              "in the mode 'Simple'");
    try {
        buildWindow();
    } catch (const std::exception &error) {
        // Without a window the user could not end the application.
        Logger::error(error.what());
        QCoreApplication::exit(EXIT_FAILURE);
    }
}

void CustomWindowAppDelegateService::configureMenuBar() {
    statusItem_ = std::make_unique<StatusItem>(QCoreApplication::applicationName().toStdString(),
                                               [this] { showApplicationViewController(); });
    if (auto image = MenuBarIcon::load(_windowConfig.wrappedValue()->_menuBarIconPath())) {
        statusItem_->setImage(std::move(*image));
    }
    statusItem_->show();
    std::exchange(desktop_.didPresent, [] {})();
}

void CustomWindowAppDelegateService::showApplicationViewController() {
    if (controller_ == nullptr) {
        popover_ = std::make_unique<Popover>(desktop_.mainMenu);
        QObject::connect(&popover_->window(), &Window::firstPainted, popover_.get(),
                         [this] { desktop_.didPaint(); });
        buildController(popover_->window());
    }
    const auto admin = _admin.wrappedValue();
    popover_->toggle(statusItem_->frame(), pixels(_menuBarSize()),
                     admin->_isAdminModeOn() && admin->_isMenuBarSemiTransient()
                         ? Popover::Behavior::semitransient
                         : Popover::Behavior::transient);
}

void CustomWindowAppDelegateService::buildWindow() {
    const auto presentation = WindowPresentation::of(*_windowConfig.wrappedValue(), desktop_.screens());
    window_ = std::make_unique<Window>(presentation.style, desktop_.mainMenu);
    if (popover_ != nullptr) {
        // Deleted later: code of the popover's window may be on the stack.
        window_->setContent(popover_->window().takeContent());
        popover_->window().hide();
        popover_.release()->deleteLater();
    }
    statusItem_.reset();
    setTitle();
    if (presentation.cover) {
        cover_ = std::make_unique<ScreenCover>(*window_, *presentation.cover, &logUnequalFight);
        cover_->coverScreens();
    }
    arrange(presentation);
    QObject::connect(window_.get(), &Window::framed, window_.get(), [this] {
        window_->shrinkToScreen();
        place();
    });
    QObject::connect(window_.get(), &Window::firstPainted, window_.get(), [this] {
        desktop_.didPaint();
        std::exchange(desktop_.didPresent, [] {})();
    });
    screensObserver_ = std::make_unique<ScreensObserver>([this] { screensChanged(); });
    window_->show();
    window_->raise();
    window_->activateWindow();
    if (controller_ == nullptr) {
        // Built while the desktop maps the window; the first paint comes after this event.
        buildController(*window_);
    }
}

void CustomWindowAppDelegateService::buildController(Window &window) {
    controller_ = new VelmarViewController(services_, desktop_.appearance, application_, &window);
    window.setContent(controller_);
}

void CustomWindowAppDelegateService::reloadInterface(bool byResetingVariables) {
    if (controller_ == nullptr) {
        application_.reloadInterface(byResetingVariables);
    } else if (byResetingVariables) {
        controller_->reloadInterfaceResetingVariables();
    } else {
        controller_->reloadInterfaceSavingVariables();
    }
}

void CustomWindowAppDelegateService::uncoverScreens() {
    if (cover_ != nullptr) {
        cover_.reset();
        QGuiApplication::sync();
    }
}

void CustomWindowAppDelegateService::setTitle() {
    const std::optional<std::string> title = _windowConfig.wrappedValue()->_title();
    // The window manager would replace an empty title.
    window_->setWindowTitle(title && !title->empty() ? QString::fromStdString(*title) : QString(QChar::Nbsp));
    window_->setAccessibleName(title ? QString::fromStdString(*title) : QCoreApplication::applicationName());
}

void CustomWindowAppDelegateService::arrange(const WindowPresentation &presentation) {
    window_->setSizes(presentation.content, presentation.minimum, presentation.maximum);
    if (presentation.origin) {
        window_->moveFrame(*presentation.origin);
    } else {
        // With a configured screen, shrinking waits for the frame.
        if (!_windowConfig.wrappedValue()->_screenIndex()) {
            window_->shrinkToScreen();
        }
        place();
    }
    if (presentation.isWholeScreen) {
        window_->setWindowState(Qt::WindowFullScreen);
    }
}

void CustomWindowAppDelegateService::place() {
    const auto section = _windowConfig.wrappedValue();
    WindowPlacement::place(*window_, section->_position(),
                           WindowPlacement::chooseScreen(desktop_.screens(), section->_screenIndex()));
}

void CustomWindowAppDelegateService::screensChanged() {
    const Screens screens = desktop_.screens();
    if (screens.frames.empty()) {
        return; // Wait until a screen is connected again.
    }
    if (cover_) {
        cover_->coverScreens();
        arrange(WindowPresentation::of(*_windowConfig.wrappedValue(), screens));
        cover_->bringToFront();
    } else if (!isOnSomeScreen(window_->geometry().center(), screens)) {
        window_->shrinkToScreen();
        place();
    }
}

} // namespace velmar
