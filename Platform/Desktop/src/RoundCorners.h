#pragma once

#include <QObject>
#include <QRect>

#include <functional>
#include <vector>

class QPainter;
class QWidget;

namespace velmar {

/// Cuts the corners of a window without frame: smoothly where the desktop lets them shine through, or where
/// it is known what is behind them, and by the window's shape otherwise.
class RoundCorners final : public QObject {
    Q_OBJECT

public:
    /// Paints a rectangle of the desktop, given in its coordinates, at the painter's origin.
    using Behind = std::function<void(QPainter &painter, const QRect &area)>;

    /// The window has no native window yet, and outlives this.
    RoundCorners(QWidget &window, int radius);

    /// What is behind the window, which stays where it is. May be called again when that has changed.
    void setBehind(Behind behind);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Corner;
    void place();
    void raise();

    QWidget &window_;
    int radius_;
    bool isSeenThrough_;
    Behind behind_;
    std::vector<Corner *> corners_; // Owned by the window.
};

} // namespace velmar
