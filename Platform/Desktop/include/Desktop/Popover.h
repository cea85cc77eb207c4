#pragma once

#include <Desktop/Screens.h>
#include <Desktop/Window.h>

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

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

    /// Shows the content in that size, with the keyboard in the window and none of its controls; or closes
    /// what is open. A popover that has just been closed is shown once it has lost the keyboard.
    void toggle(const ScreenFrame &place, QSize size, Behavior behavior);

    /// Returns the origin of a popover of that size: centred below a place in the upper half of `area`, above
    /// a place in the lower half, and always within `area`.
    [[nodiscard]] static QPoint originOf(const QRect &place, QSize size, const QRect &area);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show();
    void hideIfTurnedAway();

    Window window_;
    Behavior behavior_ = Behavior::transient;
    bool hadTheKeyboard_ = false; // since it was last shown
    QElapsedTimer sinceSentAway_;
    QTimer showLater_; // While the window is hidden and has yet to lose the keyboard.
    ScreenFrame place_;
    QSize size_;
};

} // namespace velmar
