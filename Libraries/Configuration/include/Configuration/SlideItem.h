#pragma once

#include <Configuration/InheritableKeyWrapper.h>

#include <optional>
#include <string_view>
#include <vector>

namespace velmar {

class CodingPath;
struct ColorItem;
struct ContainerItem;

/// A page with containers side by side.
struct SlideItem {
    static constexpr std::string_view typeName = "SlideItem";

    KeyWrapper<std::vector<ContainerItem>> _containers{"Containers", required};
    InheritableKeyWrapper<std::optional<ColorItem>> _containersBorderColor{"ContainersBorderColor", optional,
                                                                           &Library::colorStyles};
    KeyWrapper<bool> _hidePreviousButton{false, "HidePreviousButton", optional};
    KeyWrapper<bool> _hideNextButton{false, "HideNextButton", optional};

    /// Defined in ContainersComposition.h.
    struct ContainersComposition;

    /// Returns the widths of the containers. The slide must have passed validate().
    [[nodiscard]] ContainersComposition containersComposition() const;

    /// Checks the widths of the containers against each other. Throws ConfigurationError for the key
    /// "Containers".
    void validate(const CodingPath &path) const;
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
