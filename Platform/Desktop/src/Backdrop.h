#pragma once

#include <QImage>
#include <QWidget>

namespace velmar {

/// A window that covers a screen. Takes no focus, and nobody closes it. Shows a picture through a veil of
/// the page's colour.
class Backdrop final : public QWidget {
    Q_OBJECT

public:
    /// The picture is that of the screen; a null one where there is none to be had.
    explicit Backdrop(QImage picture);

    /// Whether the page's colour alone is shown.
    void setPlain(bool isPlain);

    /// Covers the rectangle of the desktop, that of a screen.
    void cover(const QRect &geometry);

    /// Paints a part of it, given in the coordinates of the desktop, at the painter's origin.
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
