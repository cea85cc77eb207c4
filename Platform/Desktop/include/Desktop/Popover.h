#pragma once

#include <Desktop/Screens.h>
#include <Desktop/Window.h>

#include <QElapsedTimer>
#include <QObject>

namespace velmar {

class MainMenu;

/// A window beside a place of the desktop, such as a status item, which the user calls and sends away: by the
/// Escape key, and by turning to another application if it is transient. It keeps its content while it is
/// away. Main thread.
class Popover final : public QObject {
    Q_OBJECT

public:
    enum class Behavior {
        transient,
        semitransient, ///< Stays while the user works in other applications.
    };

    /// The menu must outlive the popover.
    explicit Popover(MainMenu &menu);

    /// Owns the content that it is given.
    [[nodiscard]] Window &window() noexcept { return window_; }

    /// Shows the content in that size, with the keyboard in the window and none of its controls; or closes
    /// what is open.
    void toggle(const ScreenFrame &place, QSize size, Behavior behavior);

    /// Where a popover of that size stands: centred below a place in the upper half of the area that the
    /// screen leaves to windows, above one in the lower half, and within that area.
    [[nodiscard]] static QPoint originOf(const QRect &place, QSize size, const QRect &area);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show(const ScreenFrame &place, QSize size);
    void hideIfTurnedAway();

    Window window_;
    Behavior behavior_ = Behavior::transient;
    bool hadTheKeyboard_ = false; // Since it was last shown.
    QElapsedTimer sinceSentAway_;
};

} // namespace velmar
