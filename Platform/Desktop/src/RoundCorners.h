#pragma once

#include <QObject>
#include <QRect>

#include <functional>
#include <vector>

class QPainter;
class QWidget;

namespace velmar {

/// Rounds the corners of a frameless window. The edge is smooth if the desktop is composited or the area
/// behind the window is known; otherwise the window gets a shape mask.
class RoundCorners final : public QObject {
    Q_OBJECT

public:
    /// Paints a rectangle, given in desktop coordinates, at the painter's origin.
    using Behind = std::function<void(QPainter &painter, const QRect &area)>;

    /// The window must outlive this object and must not have a native window yet.
    RoundCorners(QWidget &window, int radius);

    /// Sets the painter of the area behind the window, which must not move. Call again when that area
    /// changes.
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
    std::vector<Corner *> corners_; // owned by the window
};

} // namespace velmar
