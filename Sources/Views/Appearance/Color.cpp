#include <Views/Appearance/Color.h>

#include <Configuration/ColorItem.h>

#include <fmt/core.h>
#include <logger/Logger.h>

namespace velmar {

Color Color::of(const ColorItem &item, bool isDark) {
    const ColorItem::Specification &specification = isDark ? item._darkMode() : item._lightMode();
    double alpha = isDark ? item._alphaDark() : item._alphaLight();
    if (specification.alpha) {
        alpha = *specification.alpha / 255.0;
        Logger::warning([&] {
            return fmt::format(
                "{}. Specifying the alpha inside the color hexa String is deprecated and will be "
                "removed in a future release",
                specification.text());
        });
    }
    return {specification.red / 255.0, specification.green / 255.0, specification.blue / 255.0, alpha};
}

} // namespace velmar
