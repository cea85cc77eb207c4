#include <Desktop/Window.h>

#include "FrameWatcher.h"
#include "MenuBar.h"
#include "RoundCorners.h"
#include "WindowManagerHints.h"

#include <QCloseEvent>
#include <QMargins>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace velmar {

namespace {

// In points: sufficient for the frames of common window managers.
constexpr QMargins usualFrame(8, 40, 8, 8);

Qt::WindowFlags flagsOf(const Window::Style &style) {
    using Rank = Window::Style::Rank;
    Qt::WindowFlags flags = style.rank == Rank::popover ? Qt::Tool : Qt::Window;
    flags.setFlag(Qt::WindowStaysOnTopHint, style.rank != Rank::ordinary);
    if (!style.hasTitleBar) {
        return flags | Qt::FramelessWindowHint;
    }
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    flags.setFlag(Qt::WindowCloseButtonHint, style.isClosable);
    return flags;
}

} // namespace

Window::Window(Style style, MainMenu &menu)
    : QWidget(nullptr, flagsOf(style)), style_(style), layout_(new QVBoxLayout(this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(0);
    menuBar_ = std::make_unique<MenuBar>(
        menu, *this, style_.hasMenuBar ? MenuBar::Visibility::asNeeded : MenuBar::Visibility::revealed);
    // Queued behind other work that waits for the paint.
    connect(this, &Window::firstPainted, menuBar_.get(), &MenuBar::prepare, Qt::QueuedConnection);
    if (!style_.hasTitleBar && style_.isRound) {
        corners_ = std::make_unique<RoundCorners>(*this, cornerRadius);
    }
    winId(); // Creates the native window: it carries the hints, which are read when it is mapped.
    windowHandle()->installEventFilter(this);
    if (style_.hasTitleBar) {
        frameWatcher_ = std::make_unique<FrameWatcher>(*windowHandle(), [this] { emit framed(); });
        setWindowManagerFunctions(
            *windowHandle(),
            {.resize = style_.isResizable, .move = style_.isMovable, .close = style_.isClosable});
    }
    if (style_.rank == Style::Rank::front) {
        setOnEveryWorkspace(*windowHandle());
    }
}

Window::~Window() {
    // Destroyed first: the bar uses the menu and this window.
    menuBar_.reset();
    frameWatcher_.reset();
}

void Window::setContent(QWidget *content) {
    delete content_;
    content_ = content;
    // Sets the final size; otherwise the layout would lay the content out twice.
    content_->setGeometry(contentsRect());
    layout_->addWidget(content_);
    content_->show();
}

QWidget *Window::takeContent() {
    if (content_ != nullptr) {
        layout_->removeWidget(content_);
    }
    return std::exchange(content_, nullptr);
}

void Window::setSizes(QSize content, QSize minimum, QSize maximum) {
    const bool isFixed = !style_.isResizable || !style_.hasTitleBar;
    setMinimumSize(isFixed ? content : minimum);
    setMaximumSize(isFixed ? content : maximum.expandedTo(minimum));
    resize(content);
}

void Window::shrinkToScreen() {
    QMargins frame = windowHandle()->frameMargins();
    if (frame.isNull() && style_.hasTitleBar) {
        // A window that is resized and moved while it is being framed may have its title bar off the screen.
        frame = usualFrame;
    }
    const QSize room = screen()->availableGeometry().size().shrunkBy(frame);
    if (size() != size().boundedTo(room)) {
        setSizes(size().boundedTo(room), minimumSize().boundedTo(room), maximumSize());
    }
}

QSize Window::frameSize() const {
    // frameGeometry() may be outdated; the native window queries its margins, but knows its size only once it
    // is shown.
    return size().grownBy(windowHandle()->frameMargins());
}

void Window::moveFrame(QPoint origin) {
    windowHandle()->setFramePosition(origin);
}

bool Window::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Expose && windowHandle()->isExposed() && !std::exchange(wasPainted_, true)) {
        menuBar_->windowWillPaint();
        // Deferred: the window paints itself while it handles the event.
        QTimer::singleShot(0, this, &Window::firstPainted);
    }
    return QWidget::eventFilter(watched, event);
}

void Window::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized() && style_.rank == Style::Rank::front) {
        // Window managers minimise by shortcut as well.
        setWindowState(windowState() & ~Qt::WindowMinimized);
        activateWindow();
    }
}

void Window::closeEvent(QCloseEvent *event) {
    // Window managers close by shortcut even without a close button.
    event->setAccepted(style_.isClosable && style_.hasTitleBar);
}

void Window::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::NoModifier) {
        menuBar_->reveal();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void Window::mousePressEvent(QMouseEvent *event) {
    const bool isInStrip = event->position().y() < moveStripHeight;
    if (!style_.hasTitleBar && style_.isMovable && isInStrip && event->button() == Qt::LeftButton) {
        windowHandle()->startSystemMove();
    }
    QWidget::mousePressEvent(event);
}

void Window::paintEvent(QPaintEvent *event) {
    // A translucent window has no background of its own.
    if (testAttribute(Qt::WA_TranslucentBackground)) {
        QPainter(this).fillRect(event->rect(), palette().color(QPalette::Window));
    }
}

void Window::setBehind(std::function<void(QPainter &, const QRect &)> behind) {
    if (corners_) {
        corners_->setBehind(std::move(behind));
    }
}

} // namespace velmar
