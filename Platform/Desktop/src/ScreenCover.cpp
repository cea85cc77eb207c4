#include <Desktop/ScreenCover.h>

#include "Backdrop.h"
#include "BlurredPicture.h"
#include "KeyboardGrab.h"
#include "StackingGuard.h"

#include <Desktop/Window.h>

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace velmar {

class ScreenCover::Backdrops final : public QObject {
public:
    Backdrops(Window &window, Backing onMainScreen, GiveUp giveUp)
        : window_(window),
          onMainScreen_(onMainScreen),
          grab_(window),
          guard_(
              *window.windowHandle(), [this] { bringToFront(); }, std::move(giveUp)) {
        qApp->installEventFilter(this);
        // A click raises a window, and on X11 an ordinary window has no transient parent, so the others must
        // be raised again.
        connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this] { raiseOtherWindows(); });
    }

    void coverScreens() {
        const QList<QScreen *> screens = QGuiApplication::screens();
        std::vector<Covered> added;
        for (QScreen *screen : screens) {
            if (!isCovered(screen->geometry())) {
                auto backdrop = std::make_unique<Backdrop>(picture(*screen));
                connect(backdrop.get(), &Backdrop::pressed, this, [this] { bringToFront(); });
                added.push_back({screen->geometry(), std::move(backdrop)});
            }
        }
        for (Covered &screen : added) {
            screen.backdrop->cover(screen.geometry);
        }
        // Removed after the new ones are shown, so that no screen is uncovered in between.
        std::erase_if(covered_, [&](const Covered &known) {
            return std::none_of(screens.begin(), screens.end(),
                                [&](const QScreen *screen) { return screen->geometry() == known.geometry; });
        });
        std::move(added.begin(), added.end(), std::back_inserter(covered_));
        followMainScreen();
    }

    void bringToFront() {
        for (const Covered &screen : covered_) {
            screen.backdrop->raise();
        }
        window_.raise();
        raiseOtherWindows();
        QWidget *const active = QApplication::activeWindow();
        QWidget *const dialog = QApplication::activeModalWidget();
        (dialog != nullptr ? dialog : active != nullptr ? active : &window_)->activateWindow();
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        // Window managers keep a dialog above its transient parent.
        if (event->type() == QEvent::Show && watched->isWidgetType()) {
            const auto &widget = *static_cast<QWidget *>(watched);
            if (isOtherWindow(widget) && widget.windowHandle()->transientParent() == nullptr) {
                widget.windowHandle()->setTransientParent(window_.windowHandle());
            }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    struct Covered {
        QRect geometry;
        std::unique_ptr<Backdrop> backdrop;
    };

    [[nodiscard]] bool isCovered(const QRect &geometry) const {
        return std::any_of(covered_.begin(), covered_.end(),
                           [&](const Covered &known) { return known.geometry == geometry; });
    }

    /// Returns the blurred content of the screen before it was first covered. Areas that were covered earlier
    /// are taken from their pictures.
    [[nodiscard]] QImage picture(QScreen &screen) {
        const QRect geometry = screen.geometry();
        const auto known = std::find_if(pictures_.begin(), pictures_.end(),
                                        [&](const auto &entry) { return entry.first == geometry; });
        if (known != pictures_.end()) {
            return known->second;
        }
        QImage image = blurredPicture(screen.grabWindow().toImage());
        if (!image.isNull()) {
            QPainter painter(&image);
            painter.scale(double(image.width()) / geometry.width(),
                          double(image.height()) / geometry.height());
            for (const auto &[place, old] : pictures_) {
                painter.drawImage(place.translated(-geometry.topLeft()), old);
            }
        }
        return pictures_.emplace_back(geometry, image).second;
    }

    /// Returns true for a dialog or a window opened by an action. Backdrops have a different window type.
    [[nodiscard]] bool isOtherWindow(const QWidget &widget) const {
        const bool isWindow = widget.windowType() == Qt::Window || widget.windowType() == Qt::Dialog;
        return isWindow && &widget != &window_ && widget.windowHandle() != nullptr;
    }

    void raiseOtherWindows() const {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (isOtherWindow(*widget) && widget->isVisible()) {
                widget->raise();
            }
        }
    }

    void followMainScreen() {
        const QScreen *main = QGuiApplication::primaryScreen();
        for (const Covered &screen : covered_) {
            const bool isMain = main != nullptr && screen.geometry == main->geometry();
            screen.backdrop->setPlain(isMain && onMainScreen_ == Backing::plain);
            if (isMain) {
                // Compositors keep the window above its transient parent.
                window_.windowHandle()->setTransientParent(screen.backdrop->windowHandle());
                window_.setBehind(
                    [backdrop = QPointer(screen.backdrop.get())](QPainter &painter, const QRect &area) {
                        if (backdrop) {
                            backdrop->paint(painter, area);
                        }
                    });
            }
        }
    }

    Window &window_;
    Backing onMainScreen_;
    std::vector<Covered> covered_;
    // pictures of all screens covered so far, by their rectangle
    std::vector<std::pair<QRect, QImage>> pictures_;
    KeyboardGrab grab_;
    StackingGuard guard_;
};

ScreenCover::ScreenCover(Window &window, Backing onMainScreen, GiveUp giveUp)
    : backdrops_(std::make_unique<Backdrops>(window, onMainScreen, std::move(giveUp))) {}

ScreenCover::~ScreenCover() = default;

void ScreenCover::coverScreens() {
    backdrops_->coverScreens();
}

void ScreenCover::bringToFront() {
    backdrops_->bringToFront();
}

} // namespace velmar
