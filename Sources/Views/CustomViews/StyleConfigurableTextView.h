#pragma once

#include <Configuration/FontItem.h>

#include <QLabel>

namespace velmar {

/// A text of any length over as many lines as its width asks for, in the font of an item. It can be neither
/// edited nor selected. Words longer than a line are broken. The colour follows the appearance.
class StyleConfigurableTextView final : public QLabel {
    Q_OBJECT

public:
    explicit StyleConfigurableTextView(QWidget *parent = nullptr);

    void setContent(const QString &content, std::optional<FontItem> fontItem);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] const QColor &color() const noexcept { return color_; }

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void updateColor();
    /// Breaks the text into lines and gives their height; draws them where there is a painter.
    qreal layOut(qreal width, QPainter *painter) const;

    std::optional<FontItem> fontItem_;
    QColor color_;
};

} // namespace velmar
