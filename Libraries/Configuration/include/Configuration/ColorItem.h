#pragma once

#include <Configuration/KeyWrapper.h>

namespace velmar {

/// A colour with a form for the dark and one for the light appearance; it can be a model of the book
/// "ColorStyles".
struct ColorItem {
    static constexpr std::string_view typeName = "ColorItem";

    /// Components from 0 to 255. In the file "#RRGGBB" or, with the alpha, "#RRGGBBAA".
    struct Specification {
        int red = 0;
        int green = 0;
        int blue = 0;
        std::optional<int> alpha;

        bool operator==(const Specification &) const = default;

        /// "#" and the components in upper-case hexadecimal without padding.
        [[nodiscard]] std::string text() const;
    };

    KeyWrapper<std::optional<std::string>> _parentModelName{"Style", optional};
    std::optional<std::string> modelName;
    bool isParentStyleApplied = false;
    KeyWrapper<Specification> _darkMode{"DarkMode", requiredIfNotSpecified({"Style"})};
    KeyWrapper<Specification> _lightMode{"LightMode", requiredIfNotSpecified({"Style"})};
    KeyWrapper<double> _alphaDark{1.0, "AlphaDark", optional, {0, 1}};
    KeyWrapper<double> _alphaLight{1.0, "AlphaLight", optional, {0, 1}};
};

template <>
struct Decodable<ColorItem::Specification> {
    static ColorItem::Specification decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const ColorItem::Specification &value) {
        return PropertyList(value.text());
    }
    /// As people write it, in contrast to the encoding with its digits left out.
    static PropertyList asWritten(const ColorItem::Specification &value);
    static std::string plistType() { return "string (#RRGGBB)"; }
    static ValueDescription describe(Descriptions & /*items*/) {
        return ValueDescription::text("colour, #RRGGBB or #RRGGBBAA", "#([0-9A-Fa-f]{6}|[0-9A-Fa-f]{8})");
    }
};

} // namespace velmar
