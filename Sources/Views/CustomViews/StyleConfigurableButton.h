#pragma once

#include <Configuration/ButtonComponentItem.h>
#include <Views/CustomViews/PushButton.h>

#include <QColor>

#include <optional>

namespace velmar {

/// A button in one of two styles: a push button with a title, or a round button with a question mark. Its
/// colours follow the appearance.
class StyleConfigurableButton final : public PushButton {
    Q_OBJECT

public:
    using Style = ComponentItems::Button::Style;

    StyleConfigurableButton(Style style, QWidget *parent);

    /// Sets the title and the fill colour; nullopt selects the colour of the theme. A round button uses the
    /// title only as its accessible name and tooltip.
    void setContent(const QString &title, std::optional<ColorItem> tint);

    /// Fill colour of the button. The title is drawn in titleColor().
    [[nodiscard]] const QColor &tintColor() const noexcept { return tintColor_; }
    [[nodiscard]] const QColor &titleColor() const noexcept { return titleColor_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateColors();

    Style style_;
    std::optional<ColorItem> tint_;
    QColor tintColor_;
    QColor titleColor_;
};

} // namespace velmar
