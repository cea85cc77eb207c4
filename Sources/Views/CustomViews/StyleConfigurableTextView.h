#pragma once

#include <Configuration/FontItem.h>

#include <QLabel>
#include <QTextLayout>

namespace velmar {

/// A text wrapped to the width of the view, in the font of an item. It cannot be edited or selected. Words
/// longer than a line are broken. The colour follows the appearance.
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
    void prepareLayout();
    /// Breaks the text into lines of a width, in pixels.
    void breakLines(int width) const;

    std::optional<FontItem> fontItem_;
    QColor color_;
    // Caches the shaped glyphs, which cost more than the lines: layouts query several widths.
    mutable QTextLayout layout_;
    mutable int brokenWidth_ = -1; // Width of the current lines.
    mutable int brokenHeight_ = 0;
};

} // namespace velmar
