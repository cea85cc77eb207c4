#pragma once

#include <Configuration/ComponentItemProtocol.h>
#include <Configuration/PopulatableURL.h>

#include <optional>
#include <string_view>

namespace velmar::ComponentItems {

/// One picture for both appearances, or one for each.
struct Image {
    static constexpr std::string_view typeName = "ComponentItem.Image";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::image;

    ComponentItemProtocol common;
    KeyWrapper<std::optional<URL>> _url{"URL", requiredIfNotSpecified({"LightModeURL", "DarkModeURL"})};
    KeyWrapper<std::optional<URL>> _lightModeURL{"LightModeURL", requiredIfSpecified({"DarkModeURL"})};
    KeyWrapper<std::optional<URL>> _darkModeURL{"DarkModeURL", requiredIfSpecified({"LightModeURL"})};
    KeyWrapper<std::optional<double>> _height{"Height", optional}; ///< In points.
    KeyWrapper<bool> _shouldFillSpace{false, "ShouldFillSpace", optional};
};

} // namespace velmar::ComponentItems
