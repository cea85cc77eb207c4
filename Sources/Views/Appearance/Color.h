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

    /// Returns the colour of the item for the appearance. Each call logs a colour whose alpha is part of its
    /// text, a deprecated form.
    [[nodiscard]] static Color of(const ColorItem &item, bool isDark);
};

} // namespace velmar
