#pragma once

#include <QImage>
#include <QWidget>

namespace velmar {

/// A window that covers a screen. Takes no focus and can't be closed by the user. Shows a picture through a
/// veil of the page's colour.
class Backdrop final : public QWidget {
    Q_OBJECT

public:
    /// `picture` shows the screen; null if it is not available.
    explicit Backdrop(QImage picture);

    /// Sets whether only the page's colour is shown.
    void setPlain(bool isPlain);

    /// Covers a screen, given by its rectangle of the desktop.
    void cover(const QRect &geometry);

    /// Paints an area, given in desktop coordinates, at the painter's origin.
    void paint(QPainter &painter, const QRect &area) const;

signals:
    void pressed();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QImage picture_;
    bool isPlain_ = false;
};

} // namespace velmar
