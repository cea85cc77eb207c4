#pragma once

#include <Configuration/ButtonComponentItem.h>
#include <Views/CustomViews/PushButton.h>

#include <QColor>

#include <optional>

namespace velmar {

/// A button in one of the two styles of an item: a push button with a title, or a round one with a question
/// mark. Its colour follows the appearance.
class StyleConfigurableButton final : public PushButton {
    Q_OBJECT

public:
    using Style = ComponentItems::Button::Style;

    StyleConfigurableButton(Style style, QWidget *parent);

    /// The title, which a round button tells to readers of the screen only, and the colour that the button is
    /// filled with; none for that of the theme.
    void setContent(const QString &title, std::optional<ColorItem> tint);

    /// What the button is filled with, and what stands on it.
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
