#pragma once

#include <Configuration/ContainerItem.h>
#include <Configuration/SlideItem.h>

#include <variant>
#include <vector>

namespace velmar {

/// The widths of the containers of a slide.
struct SlideItem::ContainersComposition {
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

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
