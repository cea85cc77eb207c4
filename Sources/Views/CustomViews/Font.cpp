#include <Views/CustomViews/Font.h>

#include <Views/CustomViews/Theme.h>

#include <algorithm>

namespace velmar {

namespace {

// Points. Other sizes are unreadable and may not be supported by the system.
constexpr double minimumSize = 1;
constexpr double maximumSize = 1000;

QFont::Weight weightOf(FontItem::SystemFontWeight weight) {
    using enum FontItem::SystemFontWeight;
    switch (weight) {
    case black:
        return QFont::Black;
    case heavy:
        return QFont::ExtraBold;
    case bold:
        return QFont::Bold;
    case semibold:
        return QFont::DemiBold;
    case medium:
        return QFont::Medium;
    case regular:
        return QFont::Normal;
    case light:
        return QFont::Light;
    case ultralight:
        return QFont::ExtraLight;
    case thin:
        return QFont::Thin;
    }
    return QFont::Normal;
}

} // namespace

QFont fontOf(const FontItem &item, const QFont &standard) {
    QFont font = standard;
    if (const auto &size = item._size(); size && *size > 0) {
        font.setPointSizeF(Theme::font(std::clamp(*size, minimumSize, maximumSize)).pointSizeF());
    }
    if (const std::optional<std::string> name = item._name()) {
        font.setFamilies({QString::fromStdString(*name), standard.family()});
    } else if (const auto &weight = item._systemFontWeight()) {
        font.setWeight(weightOf(*weight));
    }
    return font;
}

Qt::Alignment alignmentOf(const std::optional<FontItem::TextAlignment> &alignment,
                          Qt::LayoutDirection direction) {
    using enum FontItem::TextAlignment;
    switch (alignment.value_or(natural)) {
    case left:
        return Qt::AlignLeft | Qt::AlignAbsolute;
    case center:
        return Qt::AlignHCenter;
    case right:
        return Qt::AlignRight | Qt::AlignAbsolute;
    case justified:
        return Qt::AlignJustify;
    case natural:
        break;
    }
    return (direction == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
}

} // namespace velmar
