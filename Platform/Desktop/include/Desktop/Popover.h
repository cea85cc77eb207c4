#pragma once

#include <Desktop/Screens.h>
#include <Desktop/Window.h>

#include <QElapsedTimer>
#include <QObject>

namespace velmar {

class MainMenu;

/// A window next to a place on the desktop, such as a status item. The user opens it there and closes it with
/// the Escape key or, if it is transient, by switching to another application. It keeps its content while
/// hidden. Main thread only.
class Popover final : public QObject {
    Q_OBJECT

public:
    enum class Behavior {
        transient,
        semitransient, ///< Stays open when the user switches to another application.
    };

    /// The menu must outlive the popover.
    explicit Popover(MainMenu &menu);

    /// Returns the window that holds the content. The window owns its content.
    [[nodiscard]] Window &window() noexcept { return window_; }

    /// Shows the content in the given size and gives the keyboard to the window, but to none of its controls.
    /// Closes the popover if it is open.
    void toggle(const ScreenFrame &place, QSize size, Behavior behavior);

    /// Returns the origin of a popover of that size: centred below a place in the upper half of `area`, above
    /// a place in the lower half, and always within `area`.
    [[nodiscard]] static QPoint originOf(const QRect &place, QSize size, const QRect &area);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show(const ScreenFrame &place, QSize size);
    void hideIfTurnedAway();

    Window window_;
    Behavior behavior_ = Behavior::transient;
    bool hadTheKeyboard_ = false; // since it was last shown
    QElapsedTimer sinceSentAway_;
};

} // namespace velmar
