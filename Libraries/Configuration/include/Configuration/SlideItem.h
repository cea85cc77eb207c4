#pragma once

#include <Configuration/ColorItem.h>
#include <Configuration/ContainerItem.h>
#include <Configuration/InheritableKeyWrapper.h>

#include <variant>
#include <vector>

namespace velmar {

/// One page: containers side by side.
struct SlideItem {
    static constexpr std::string_view typeName = "SlideItem";

    KeyWrapper<std::vector<ContainerItem>> _containers{"Containers", required};
    InheritableKeyWrapper<std::optional<ColorItem>> _containersBorderColor{"ContainersBorderColor", optional,
                                                                           &Library::colorStyles};
    KeyWrapper<bool> _hidePreviousButton{false, "HidePreviousButton", optional};
    KeyWrapper<bool> _hideNextButton{false, "HideNextButton", optional};

    /// How the containers share the width of the slide.
    struct ContainersComposition {
        /// Equal widths.
        struct NotSpecified {
            std::vector<ContainerItem> containers;
        };
        struct Ratio {
            struct Share {
                ContainerItem container;
                double ratio = 0; ///< From 0 to 1.
            };
            std::vector<Share> shares;
        };
        std::variant<NotSpecified, Ratio> value;
    };

    /// The composition of a slide that passed `validate`.
    [[nodiscard]] ContainersComposition containersComposition() const;

    /// Checks the widths of the containers against each other. Throws ConfigurationError for the key
    /// "Containers".
    void validate(const CodingPath &path) const;
};

} // namespace velmar
