#pragma once

namespace velmar {

struct ColorItem;

/// A colour on screen; components from 0 to 1.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    bool operator==(const Color &) const = default;

    /// The form of the item for the appearance. A colour whose alpha stands in its specification is logged,
    /// each time it is made: that form is on its way out.
    [[nodiscard]] static Color of(const ColorItem &item, bool isDark);
};

} // namespace velmar
