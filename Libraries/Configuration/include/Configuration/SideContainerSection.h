#pragma once

#include <Configuration/ContainerItem.h>
#include <Configuration/KeyWrapper.h>

namespace velmar {

/// A container that stands beside all slides.
struct SideContainerSection {
    static constexpr std::string_view typeName = "SideContainerSection";

    KeyWrapper<ContainerItem> _container{"Container", required};
    KeyWrapper<double> _width{250.0, "Width", optional}; ///< In points.
};

} // namespace velmar
