#pragma once

#include <QProxyStyle>
#include <QStyleOptionButton>

namespace velmar {

class DesktopAppearance;

/// The style of the application: two palettes, the type scale and the drawing of controls. Views take colours
/// from their palette only: Window and WindowText for the page, AlternateBase for bars, Mid for separators,
/// PlaceholderText for secondary text, Highlight for the accent. The default push button is filled with the
/// accent. The layout grid is 4 points.
class Theme final : public QProxyStyle {
    Q_OBJECT

public:
    /// Sets the style of the application, which owns it. `appearance` must outlive the event loop.
    static void install(const DesktopAppearance &appearance);

    /// The type scale, in points.
    static constexpr double bodySize = 15;
    static constexpr double controlSize = 14;

    /// Space around the drawn shape of a control, for its focus ring; in points.
    static constexpr int focusRingRoom = 4;

    /// Returns the system font in a size. A point is a layout unit, independent of the screen resolution.
    [[nodiscard]] static QFont font(double points);

    /// Corner radius of boxes, in points.
    static constexpr double cornerRadius = 8;

    /// Draws a focus ring, centred on the edges of `shape`. `radius` is the corner radius of the focused box.
    static void drawFocusRing(QPainter &painter, const QRectF &shape, const QPalette &palette,
                              qreal radius = cornerRadius);

    /// Draws a push button as a circle that contains its text.
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
