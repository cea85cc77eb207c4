#pragma once

#include <QProxyStyle>
#include <QStyleOptionButton>

namespace velmar {

class DesktopAppearance;

/// The look of the whole application: its two palettes, its type scale and how its controls are drawn. Views
/// take colours from their palette alone: Window and WindowText for the page, AlternateBase for the bars
/// beside it, Mid for separators, PlaceholderText for quieter text, Highlight for the accent. A push button
/// that is the default one is the primary one, filled with the accent. Everything is laid out on a grid of 4
/// points.
class Theme final : public QProxyStyle {
    Q_OBJECT

public:
    /// Gives the application this style, in which it stays. The appearance must outlive the application's
    /// loop.
    static void install(const DesktopAppearance &appearance);

    /// The type scale, in points.
    static constexpr double bodySize = 15;
    static constexpr double controlSize = 14;

    /// The room within a control around what is drawn, into which its focus ring goes; in points.
    static constexpr int focusRingRoom = 4;

    /// The system's font in a size. A point is a unit of layout, whatever the resolution.
    [[nodiscard]] static QFont font(double points);

    /// Of the corners of what is drawn as a box, in points.
    static constexpr double cornerRadius = 8;

    /// Draws the ring of what has the keyboard's focus, centred on the edges of the shape; the radius is that
    /// of the box within.
    static void drawFocusRing(QPainter &painter, const QRectF &shape, const QPalette &palette,
                              qreal radius = cornerRadius);

    /// Draws a push button as a circle with its text in it.
    static void drawRoundButton(QPainter &painter, const QStyleOptionButton &button);

    using QProxyStyle::polish;
    void polish(QPalette &palette) override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption *option,
                                  const QWidget *widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                                QStyleHintReturn *returnData) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                         const QWidget *widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                       SubControl subControl, const QWidget *widget) const override;

private:
    explicit Theme(const DesktopAppearance &appearance);
    const DesktopAppearance &appearance_;
};

} // namespace velmar
