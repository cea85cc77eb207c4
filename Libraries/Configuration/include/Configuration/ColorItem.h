#pragma once

#include <Configuration/KeyWrapper.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// A colour with a dark and a light variant. Can be a model of the book "ColorStyles".
struct ColorItem {
    static constexpr std::string_view typeName = "ColorItem";

    /// An RGB colour with optional alpha; components from 0 to 255. "#RRGGBB" or "#RRGGBBAA" in the file.
    struct Specification {
        int red = 0;
        int green = 0;
        int blue = 0;
        std::optional<int> alpha;

        bool operator==(const Specification &) const = default;

        /// Returns "#" and the components in upper-case hexadecimal without padding.
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

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
