#pragma once

#include <Configuration/FontItem.h>

#include <QLabel>
#include <QTextLayout>

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
    void prepareLayout();
    /// Breaks the text into lines of a width.
    void breakLines(int width) const;

    std::optional<FontItem> fontItem_;
    QColor color_;
    // Keeps the shaped glyphs, which cost more than the lines: layouts ask for several widths before they
    // settle.
    mutable QTextLayout layout_;
    mutable int brokenWidth_ = -1; // Of the present lines.
    mutable int brokenHeight_ = 0;
};

} // namespace velmar
