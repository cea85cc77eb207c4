#include <AppDelegate/OpenedWindow.h>

#include <AppDelegate/Services/WindowPlacement.h>
#include <Views/Content/Slides/SlideViewController.h>
#include <Views/CustomViews/Pixels.h>

#include <Desktop/ShortText.h>
#include <Desktop/Window.h>

#include <QCoreApplication>

namespace velmar {

namespace {

constexpr int longestTitle = 120; // Characters; a title may be a long text.

QString titleOf(const SlideViewController &slide) {
    const QString title = shortened(slide.title().simplified(), longestTitle);
    return title.isEmpty() ? QCoreApplication::applicationName() : title;
}

} // namespace

OpenedWindow::OpenedWindow(const Services &services, MainMenu &mainMenu, const DesktopAppearance &appearance,
                           std::function<Screens()> screens)
    : services_(services), mainMenu_(mainMenu), appearance_(appearance), screens_(std::move(screens)) {}

OpenedWindow::~OpenedWindow() = default;

void OpenedWindow::open(std::shared_ptr<const ActionItems::OpenWindow> item) {
    const ScreenFrame screen = WindowPlacement::chooseScreen(screens_(), std::nullopt);
    dismiss();
    window_ = std::make_unique<Window>(Window::Style{.hasTitleBar = true,
                                                     .isClosable = item->_isClosable(),
                                                     .isResizable = false,
                                                     .isMovable = item->_isMovable(),
                                                     .rank = Window::Style::Rank::front,
                                                     .hasMenuBar = false},
                                       mainMenu_);
    auto *slide = new SlideViewController(item->_slide(), SlideViewController::Kind::standard, center_,
                                          services_, appearance_, window_.get());
    window_->setContent(slide);
    const QSize size = pixels(item->_size());
    window_->setSizes(size, size, size);
    window_->shrinkToScreen();
    const auto updateTitle = [window = window_.get(), slide] { window->setWindowTitle(titleOf(*slide)); };
    updateTitle();
    QObject::connect(slide, &SlideViewController::titleDidChange, window_.get(), updateTitle);

    const WindowPositionItem position = item->_position().value_or(WindowPositionItem());
    WindowPlacement::place(*window_, position, screen);
    QObject::connect(window_.get(), &Window::framed, window_.get(),
                     [window = window_.get(), position, screen] {
                         window->shrinkToScreen();
                         WindowPlacement::place(*window, position, screen);
                     });
    slide->viewWillAppear();
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void OpenedWindow::close() {
    if (dismiss()) {
        didClose_();
    }
}

bool OpenedWindow::dismiss() {
    // Deleted later: the caller may be a handler of the window's button.
    if (Window *const former = window_.release()) {
        former->hide();
        former->deleteLater();
        return true;
    }
    return false;
}

} // namespace velmar
